#include "shell/speech/busyfiles.h"

#include <optional>
#include <utility>

#include <windows.h>

#include "../../harness.h"
#include "campaign/savegame.h"

namespace duskmarch {
namespace {

using Texts = std::vector<std::string>;

// Another program, which lets others read the file, but not put another one in its place.
class Holder {
 public:
  explicit Holder(const std::filesystem::path& file)
      : handle_(CreateFileW(file.c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                            OPEN_EXISTING, 0, nullptr)) {}
  Holder(const Holder&) = delete;
  Holder& operator=(const Holder&) = delete;
  ~Holder() { letgo(); }

  void letgo() { CloseHandle(std::exchange(handle_, nullptr)); }

 private:
  HANDLE handle_;
};

constexpr auto complaint =
    "Sapi rate changed to 4.  Your speech settings cannot be saved.  The game goes on without "
    "saving.";

TEST(BusyFiles, KeysGoOnAndTheNewestSettingsAreKeptWhenTheFileIsFree) {
  const ProgramFolder folder;
  folder.write("progress.ini", " 0 \r\n 2 \r\n\r\n");
  Player player({.folder = folder.path});
  Holder other(folder.path / "progress.ini");
  EXPECT_EQ(player.spokenby(key::pageup), Texts{"Sapi rate changed to 3."});
  EXPECT_EQ(player.spokenby(key::pageup), Texts{"Sapi rate changed to 4."});
  EXPECT_EQ(folder.read("progress.ini"), " 0 \r\n 2 \r\n\r\n");
  EXPECT_TRUE(trybusyfilesagain(player.game()));
  other.letgo();
  EXPECT_FALSE(trybusyfilesagain(player.game()));
  EXPECT_EQ(folder.read("progress.ini"), " 0 \r\n 4 \r\n\r\n");
  EXPECT_EQ(player.game().saidlines[1], "Sapi rate changed to 4.");
}

TEST(BusyFiles, AFailureIsToldOnceItIsCertain) {
  const ProgramFolder folder;
  folder.write("progress.ini", " 0 \r\n 2 \r\n\r\n");
  Player player({.folder = folder.path});
  const Holder other(folder.path / "progress.ini");
  EXPECT_EQ(player.spokenby(key::pageup), Texts{"Sapi rate changed to 3."});
  EXPECT_EQ(player.spokenby(key::pageup), Texts{"Sapi rate changed to 4."});
  while (trybusyfilesagain(player.game())) Sleep(1);
  EXPECT_EQ(player.game().saidlines[1], complaint);  // said with what had been said last
  EXPECT_EQ(folder.read("progress.ini"), " 0 \r\n 2 \r\n\r\n");
  EXPECT_EQ(player.spokenby(key::pageup), Texts{"Sapi rate changed to 5."});
  while (trybusyfilesagain(player.game())) Sleep(1);
  EXPECT_EQ(player.game().saidlines[1], "Sapi rate changed to 5.");
}

class BusySavedGame : public testing::Test {
 protected:
  // With another program's hand on what was saved before.
  BusySavedGame() {
    savegame(player.game(), "game.sav");
    before = player.folder().read("game.sav");
    other.emplace(player.folder().path / "game.sav");
    player.game().missionnumber = 2;
  }
  Player::Events save() {
    return player.during([&] { savegame(player.game(), "game.sav"); });
  }
  Player::Events wait() {
    return player.during([&] {
      while (trybusyfilesagain(player.game())) Sleep(1);
    });
  }

  Player player;
  std::string before;
  std::optional<Holder> other;
};

TEST_F(BusySavedGame, IsHeardWhenItIsOnTheDiskAndCanBeLoadedBefore) {
  EXPECT_EQ(save(), Texts{});
  player.game().missionnumber = 0;
  loadgame(player.game(), "game.sav");
  EXPECT_EQ(player.game().missionnumber, 2);
  EXPECT_EQ(player.folder().read("game.sav"), before);
  other.reset();
  EXPECT_TRUE(wait().front().ends_with("sounds/game/saved.wav"));
  EXPECT_TRUE(player.folder().read("game.sav").starts_with(" 2 \r\n"));
  EXPECT_EQ(player.folder().read("game.sav.bak"), before);
}

TEST_F(BusySavedGame, ThatCannotBeWrittenIsToldLate) {
  player.press(key::down);
  save();
  EXPECT_EQ(wait().back(), "voice\tStart new game  Error saving game.");
  EXPECT_EQ(player.folder().read("game.sav"), before);
}

TEST_F(BusySavedGame, IsNoWayBackWhereItCannotBeWritten) {
  savegame(player.game(), autosavefile);
  const Holder another(player.folder().path / autosavefile);
  player.game().waybackkept = keepprogress(player.game());
  wait();
  EXPECT_FALSE(player.game().waybackkept);
}

}  // namespace
}  // namespace duskmarch
