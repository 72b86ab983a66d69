// The game's files where the program's folder cannot be written, and a second game with the same
// ones.
#include "campaign/savegame.h"
#include "harness.h"

namespace duskmarch {
namespace {

constexpr std::string_view settings = "progress.ini";
constexpr std::string_view silentreader = " 1 \r\n 2 \r\n\r\n";  // mode 1
constexpr std::string_view askedreader = " 2 \r\n 2 \r\n\r\n";

struct TwoFolders {
  ProgramFolder program;
  ProgramFolder data;
  ReplayOptions apart() const { return {.folder = program.path, .files = data.path}; }
  ReplayOptions together() const { return {.folder = program.path}; }
};

TEST(OwnFiles, AreWrittenApartAndReadWhereTheyAre) {
  const TwoFolders folders;
  folders.program.write(settings, silentreader);
  folders.program.write("Game.sav", "not a saved game");
  {
    Player player(folders.apart());
    EXPECT_EQ(player.game().speechmode, 1) << "no settings among the player's data yet";
    player.press(key::tab);
    player.press(key::f9);  // what lies beside the program is found, and bad
    player.press(key::f5);  // the loudness of cues, kept in comfort.ini
    savegame(player.game(), "game.sav");
  }
  EXPECT_EQ(folders.data.read(settings), askedreader);
  EXPECT_FALSE(folders.data.read("game.sav").empty());
  EXPECT_FALSE(folders.data.read("comfort.ini").empty());
  EXPECT_EQ(folders.program.read(settings), silentreader);
  EXPECT_EQ(folders.program.read("Game.sav"), "not a saved game");
  EXPECT_EQ(folders.program.read("comfort.ini"), "");
  EXPECT_EQ(Player(folders.apart()).game().speechmode, 2);
  EXPECT_EQ(Player(folders.together()).game().speechmode, 1);
}

TEST(OwnFiles, LogAndCrashAreAmongThem) {
  const TwoFolders folders;
  folders.data.write("crash.txt", "key 40\n");
  std::filesystem::remove(folders.program.path / "sounds/menu/enter.wav");
  Player player(folders.apart());
  player.press(key::down);
  player.press(key::enter);
  const std::string log = folders.data.read("debuglog.txt");
  EXPECT_TRUE(log.starts_with("An earlier run crashed.")) << log;
  EXPECT_NE(log.find("File is missing"), std::string::npos) << log;
  EXPECT_EQ(folders.program.read("debuglog.txt"), "");
}

TEST(OwnFiles, ASecondGameWithThemIsRefused) {
  const std::string box = "message\t\tDuskmarch is already running.";
  for (const bool reader : {true, false}) {
    const ProgramFolder folder;
    if (!reader) folder.write(settings, silentreader);
    folder.write("crash.txt", "key 40\n");
    Player player({.folder = folder.path, .alreadyrunning = true, .reader = reader});
    const Player::Events events = player.events();
    EXPECT_EQ(std::ranges::count(events, box), 1);
    EXPECT_EQ(std::ranges::count(events, "voice\tDuskmarch is already running."), reader ? 0 : 1);
    EXPECT_TRUE(player.game().ended);
    EXPECT_FALSE(player.game().firststart) << "a reader that is found gets advice for this one";
    EXPECT_EQ(folder.read("debuglog.txt"), "");  // which is the other's
  }
}

}  // namespace
}  // namespace duskmarch
