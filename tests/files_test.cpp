// The files that the game writes, where something else has their names.
#include "platform/files.h"

#include "campaign/savegame.h"
#include "debuglog.h"
#include "harness.h"
#include "shell/speech/progress.h"
#include "values/textfile.h"

namespace duskmarch {
namespace {

namespace fs = std::filesystem;

// Everything that writes, twice; the log begins anew the second time.
void writeall(const fs::path& folder) {
  Player player({.folder = folder});
  for (int n = 0; n < 2; ++n) {
    logline(folder, std::string(largesttextfile - 2, 'x'));
    saveprogress(player.game());
    savegame(player.game(), "game.sav");
    loadgame(player.game(), "game.sav");
  }
}

TEST(Files, NothingElseIsWrittenOverOrWaitedFor) {
  for (const char* name : {"debuglog.txt", "debuglog.old", "progress.ini", "progress.ini.new",
                           "game.sav", "game.sav.bak", "game.sav.damaged"}) {
    const ProgramFolder folder;
    const fs::path file = folder.path / name;
    folder.write("theirs", "theirs");
    fs::create_symlink("theirs", file);
    writeall(folder.path);
    EXPECT_TRUE(folder.read("theirs") == "theirs") << name;
    fs::remove(file);
    fs::create_symlink("nowhere", file);
    writeall(folder.path);
    EXPECT_FALSE(fs::exists(folder.path / "nowhere")) << name;
    fs::remove(file);
    ASSERT_TRUE(makepipe(file));
    writeall(folder.path);
  }
}

TEST(Files, AnEndlessOneIsRefusedAtOnce) {
  const ProgramFolder folder;
  for (const char* name : {"game.sav", "progress.ini"}) {
    folder.write(name, "");
    fs::resize_file(folder.path / name, std::uintmax_t{300} << 20);
  }
  const std::size_t before = peakmemory();
  Player player({.folder = folder.path});
  EXPECT_EQ(player.spoken([&] { loadgame(player.game(), "game.sav"); }),
            std::vector<std::string>{"Error loading game."});
  EXPECT_NE(folder.read("debuglog.txt").find("progress.ini: it is larger"), std::string::npos);
  EXPECT_LT(peakmemory() - before, 100 << 10) << "KiB";
  folder.write("most.txt", std::string(largesttextfile, 'x'));
  EXPECT_EQ(readtextfile(folder.path / "most.txt").size(), largesttextfile);
}

TEST(Files, TheLogBeginsAnewBeforeItGrowsTooLarge) {
  const ProgramFolder folder;
  const std::string full(largesttextfile - 8, 'x');
  folder.write("debuglog.txt", full);
  folder.write("debuglog.old", "older");
  logline(folder.path, "123456");
  EXPECT_EQ(folder.read("debuglog.txt"), full + "123456\r\n");
  EXPECT_EQ(folder.read("debuglog.old"), "older");
  logline(folder.path, "7");
  EXPECT_EQ(folder.read("debuglog.txt"), "7\r\n");
  EXPECT_EQ(folder.read("debuglog.old"), full + "123456\r\n");
}

}  // namespace
}  // namespace duskmarch
