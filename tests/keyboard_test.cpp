#include "shell/keyboard.h"

#include <algorithm>

#include "harness.h"
#include "heroturn/optionlist.h"
#include "shell/buttons.h"
#include "shell/speech/hold.h"
#include "shell/speech/speech.h"
#include "shell/startup.h"

namespace duskmarch {
namespace {

using Lines = std::vector<std::string>;

TEST(StartUp, FillsTheBuffersAndWritesNothing) {
  Player player;
  for (const std::string& file : player.game().bufferfile) {
    EXPECT_EQ(file, "\\sounds\\menu\\arrows.wav");
  }
  EXPECT_FALSE(std::filesystem::exists(player.folder().path / "progress.ini"));
}

TEST(StartUp, ACrashIsReportedInTheLogOnce) {
  ProgramFolder folder;
  folder.write("crash.txt", "seed 1\n");
  const auto anhourago = std::filesystem::file_time_type::clock::now() - std::chrono::hours(1);
  std::filesystem::last_write_time(folder.path / "crash.txt", anhourago);
  const auto logafterstart = [&folder] {
    const Player player({.folder = folder.path});
    return folder.read("debuglog.txt");
  };
  const std::string once = logafterstart();
  EXPECT_NE(once.find("crash.txt"), std::string::npos);
  EXPECT_EQ(logafterstart(), once);
  const auto inanhour = anhourago + std::chrono::hours(2);
  std::filesystem::last_write_time(folder.path / "crash.txt", inanhour);
  EXPECT_EQ(logafterstart(), once + once) << "a new crash";
}

// Presses keys while the game lets events through.
class BusyWindow : public ReplayWindow {
 public:
  using ReplayWindow::ReplayWindow;
  void processevents() override { happen(); }
  void wait(std::chrono::milliseconds duration) override {
    ReplayWindow::wait(duration);
    happen();
  }
  std::function<void()> pending;

 private:
  void happen() {
    if (auto now = std::exchange(pending, nullptr)) now();
  }
};

struct BusyPlayer {
  ProgramFolder folder;
  ReplayDesktop replay{{.folder = folder.path}};
  BusyWindow window{replay.transcript};
  Desktop desktop{replay.system, window, replay.summary, replay.story, replay.help, replay.dialogs};
  Game game{desktop};
};

TEST(Keyboard, EnterAgainDuringTheFarewellDoesNothing) {
  BusyPlayer player;
  startup(player.game);
  keypress(player.game, {.keycode = key::up});
  player.replay.transcript.clear();
  player.window.pending = [&] { keypress(player.game, {.keycode = key::enter}); };
  keypress(player.game, {.keycode = key::enter});
  const std::string& heard = player.replay.transcript.text();
  EXPECT_EQ(heard.find("Good bye."), heard.rfind("Good bye."));
  EXPECT_TRUE(heard.ends_with("end\n")) << heard;
}

TEST(Keyboard, HoldLetsKeysThroughAndTheSyntheticKeysAreNobodys) {
  BusyPlayer player;
  startup(player.game);
  player.replay.transcript.clear();
  player.window.pending = [&] { keypress(player.game, {.keycode = key::down}); };
  hold(player.game, 0.0005);
  EXPECT_EQ(player.replay.transcript.text(), "");
  hold(player.game, 1);
  EXPECT_EQ(player.replay.transcript.text(),
            "wait\t1\nplay\t2\t0\t0\t0\tsounds/menu/arrows.wav\nvoice\tStart new game\n");
  player.window.pending = [&] {
    for (int n = 0; n < 10'000; ++n) keypress(player.game, {.keycode = key::down});
  };
  player.replay.transcript.clear();
  hold(player.game, 1);
  const std::string& heard = player.replay.transcript.text();
  EXPECT_EQ(std::ranges::count(heard, '\n'), 1 + 2 * 10'000) << "a key was lost or came twice";
  player.game.speechmode = 2;
  player.replay.transcript.clear();
  player.window.pending = [&] { keypress(player.game, {.keycode = key::ctrl}); };
  sayit(player.game, "New");
  EXPECT_EQ(player.replay.transcript.text().find("title\t\n"), std::string::npos);
}

std::string scriptof(const CrashTrace& trace) {
  std::string script;
  trace.writeto([&](const char* data, std::size_t size) { script.append(data, size); });
  return script;
}

TEST(CrashTrace, IsAScriptWithAnswersAheadOfTheirKeys) {
  CrashTrace trace;
  trace.begin("0.1", 77);
  for (int n = 0; n < 1'000'000; ++n) trace.key(40, 0);
  trace.key(13, 1);
  trace.answer("a\tb");
  trace.answer("");
  trace.answer(std::string(3 * CrashTrace::partsize, 'x'));
  const std::string script = scriptof(trace);
  EXPECT_TRUE(script.starts_with("# Duskmarch 0.1: all keys before a crash\nseed 77\nkey 40\nkey"));
  EXPECT_NE(script.find("key 40\nanswer a\\tb\ncancel\nanswer xxx"), std::string::npos);
  EXPECT_TRUE(script.ends_with("x\nkey 13 1\n"));
  EXPECT_EQ(std::ranges::count(script, '\n'), 2 + 1'000'000 + 4);
}

TEST(CrashTrace, KeepsTheNewestKeysWhereMemoryEnds) {
  CrashTrace trace;
  trace.limitparts(0);
  trace.begin("0.1", 77);
  for (int n = 1; n <= 100'000; ++n) {
    trace.key(n, 0);
    if (n % 10 != 0 || n < 5'000) continue;
    const std::string script = scriptof(trace);
    ASSERT_TRUE(script.starts_with("# There was no memory for all keys"));
    const std::string oldest = "\nkey " + std::to_string(n - 199) + "\n";
    ASSERT_NE(script.find(oldest), std::string::npos) << n;
    ASSERT_TRUE(script.ends_with("\nkey " + std::to_string(n) + "\n"));
  }
}

TEST(CrashTrace, KeepsWhatWasLoadedAndNotSavedBefore) {
  CrashTrace trace;
  trace.saved("autosave.sav", "ours");
  trace.loaded("autosave.sav", "ours");
  trace.loaded("none.sav", std::nullopt);
  trace.saved("none.sav", "made");
  EXPECT_EQ(scriptof(trace), "");
  trace.loaded("game.sav", "theirs");
  trace.saved("game.sav", "ours");
  EXPECT_EQ(scriptof(trace), "# needs what is in crash-game.sav as game.sav from the start\n");
  trace.loaded("game.sav", "theirs");
  EXPECT_TRUE(scriptof(trace).ends_with("another way from here\n"));
  std::string files;
  trace.writefilesto([&](const char* name, const char* data, std::size_t size) {
    files += std::string(name) + "=" + std::string(data, size) + ";";
  });
  EXPECT_EQ(files, "crash-game.sav=theirs;");
}

}  // namespace
}  // namespace duskmarch
