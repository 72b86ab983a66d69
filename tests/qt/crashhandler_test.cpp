#include "platform/qt/crashhandler.h"

#include <csignal>
#include <fstream>
#include <memory>
#include <sstream>
#include <string>

#include <sys/stat.h>

#include "../harness.h"
#include "platform/replay/statelines.h"

namespace duskmarch {
namespace {

// The game with a fault: looking at its history crashes it, when it has told of everything that it
// came to.
class FaultyVoice : public Voice {
 public:
  explicit FaultyVoice(const Game& game) : game_(game) {}
  void setrate(int) override {}
  void speak(std::string_view text) override {
    if (!text.starts_with("Rev 1, ")) return;
    Transcript state;
    writestate(game_, state);
    std::ofstream(game_.programfolder / "state") << state.text() << game_.random;
    volatile int* volatile nowhere = nullptr;
    *nowhere = 1;
  }
  void speakafter(std::string_view) override {}
  void hush() override {}

 private:
  const Game& game_;
};

void crash(Player& player, const std::vector<std::string>& script) {
  player.game().sapivoice = std::make_unique<FaultyVoice>(player.game());
  const CrashHandler handler(player.game().trace, player.game().programfolder);
  for (const std::string& line : script) player.session().perform(line);
}

// Loads a campaign; a mission with a move that asks for its direction, and ends of turn in it.
std::vector<std::string> longplay() {
  std::vector<std::string> script = {"key 120"};
  for (int n = 0; n < 300; ++n) script.emplace_back("key 40");
  for (const char* line : {"key 27 1", "key 39", "key 39", "key 13", "key 27", "key 32", "key 40",
                           "answer N", "key 13"}) {
    script.emplace_back(line);
  }
  for (int turn = 0; turn < 5; ++turn) {
    script.emplace_back("key 69 1");
    script.emplace_back("key 13");
  }
  script.emplace_back("key 221");
  return script;
}

TEST(CrashHandler, EveryCrashReplaysFromItsStart) {
  const ProgramFolder folder, again;
  std::filesystem::copy_file(TEST_FOLDER "/transcripts/hideout.sav", folder.path / "game.sav");
  Player player({.folder = folder.path, .seed = 7});
  EXPECT_EXIT(crash(player, longplay()), testing::KilledBySignal(SIGSEGV), "");
  const std::string script = folder.read(crashfile);
  EXPECT_NE(script.find("answer N\n"), std::string::npos);
  EXPECT_EQ(folder.read("crash-game.sav"), folder.read("game.sav"));

  again.write("game.sav", folder.read("crash-game.sav"));
  std::vector<std::string> lines;
  std::istringstream stream(script);
  for (std::string line; std::getline(stream, line);) lines.push_back(line);
  Player replayed({.folder = again.path});
  EXPECT_EXIT(crash(replayed, lines), testing::KilledBySignal(SIGSEGV), "");
  EXPECT_NE(folder.read("state"), "");
  EXPECT_EQ(again.read("state"), folder.read("state"));
}

TEST(CrashHandler, DiesOfTheSignalAndWritesOverNothingElse) {
  const ProgramFolder folder;
  const std::filesystem::path file = folder.path / crashfile;
  CrashTrace trace;
  trace.begin("0.1 testing 3", 7);
  trace.key(13, 0);
  const auto dieof = [&](int signal) {
    const CrashHandler handler(trace, folder.path);
    raise(signal);
  };
  folder.write(crashfile, std::string(1000, 'x'));
  for (const int signal : {SIGSEGV, SIGABRT, SIGFPE}) {
    EXPECT_EXIT(dieof(signal), testing::KilledBySignal(signal), "");
    EXPECT_EQ(folder.read(crashfile),
              "# Duskmarch 0.1 testing 3: all keys before a crash\nseed 7\n"
              "key 13\n");
  }
  std::filesystem::remove(file);
  folder.write("theirs", "theirs");
  std::filesystem::create_symlink("theirs", file);
  EXPECT_EXIT(dieof(SIGSEGV), testing::KilledBySignal(SIGSEGV), "");
  EXPECT_EQ(folder.read("theirs"), "theirs");
  std::filesystem::remove(file);
  ASSERT_EQ(mkfifo(file.c_str(), 0600), 0);
  EXPECT_EXIT(dieof(SIGSEGV), testing::KilledBySignal(SIGSEGV), "");
}

}  // namespace
}  // namespace duskmarch
