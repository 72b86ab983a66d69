#include "campaign/savegame.h"

#include "campaignkeys.h"
#include "refusedcalls.h"

namespace duskmarch {
namespace {

namespace fs = std::filesystem;

// The lines of a file, each ended by a bar.
const std::string empty = "|| 0 | 0 | 0 | 0 |" + std::string(22, '|');
const std::string unrecruited = "||" + empty + empty + empty;
// Line 3 is the hero's name, line 14 the ability count, line 33 the upgrade points.
const std::string campaign =
    " 3 | Rosa|Owl, the| 2 | 1 | 1 | 9 | 13 | 1 | 15 |||[x]| 1 |Net| 2 |-3 || 2 | 2 | 4 | 5 | 8 "
    "| 2 | 1 | 4 | 8 | 0 | 1 | 0 | 0 |$N | 17 |" +
    empty + empty;

std::string filed(std::string_view lines, std::string_view ending = "\r\n") {
  std::string text;
  for (const char c : lines) c == '|' ? text += ending : text += c;
  return text;
}

std::string replaced(std::string lines, int line, std::string_view text) {
  std::size_t start = 0;
  while (--line > 0) start = lines.find('|', start) + 1;
  return lines.replace(start, lines.find('|', start) - start, text);
}

class SavedGame : public testing::Test {
 protected:
  std::string save() {
    return player.during([&] { savegame(player.game(), "game.sav"); }).front();
  }
  std::string load(std::string_view content) {
    player.folder().write("game.sav", content);
    return load();
  }
  std::string load() {
    return player.during([&] { loadgame(player.game(), "game.sav"); }).front();
  }
  std::string content(std::string_view name = "game.sav") { return player.folder().read(name); }
  fs::path file(std::string_view name) { return player.folder().path / name; }

  Player player;
  const std::string loaded = "voice\tGame loaded.";
  const std::string loaderror = "voice\tError loading game.";
  const std::string saveerror = "voice\tError saving game.";
};

TEST_F(SavedGame, HoldsEveryHeroLineByLine) {
  perform(player, 1);
  recruit(player, 1, "Owl", {0, 2, 1});
  EXPECT_TRUE(save().ends_with("\t0\t0\t0\tsounds/game/saved.wav"));
  EXPECT_EQ(content(), filed("||Owl| 1 | 1 | 1 | 8 | 8 |||||| 5 |Shield| 1 ||Heal| 1 ||Hook| 1 ||"
                             "Dive| 2 ||Kick| 1 ||||| 4 | 4 | 0 |||||||||||" +
                             empty + empty));
}

TEST_F(SavedGame, LoadedAndSavedAgainIsTheSameBytes) {
  for (const std::string_view ending : {"\r\n", "\n"}) {
    EXPECT_EQ(load(filed(campaign, ending)), loaded);
    save();
    EXPECT_EQ(content(), filed(campaign));
  }
}

TEST_F(SavedGame, AnEarlierOneIsKeptByWhetherItIsWhole) {
  player.folder().write("game.sav.bak", "oldest");
  const std::string whole = filed(campaign);
  const std::string lastbytegone = whole.substr(0, whole.size() - 1);  // it loads all the same
  for (const std::string& damaged : {std::string("by hand"), lastbytegone}) {
    player.folder().write("game.sav", damaged);
    save();
    EXPECT_EQ(content("game.sav.damaged"), damaged);
    EXPECT_EQ(content("game.sav.bak"), "oldest");
  }
  // What a save left that was cut short takes no place from what a hand may still repair.
  player.folder().write("game.sav", "cut");
  save();
  EXPECT_EQ(content("game.sav.damaged"), lastbytegone);
  player.folder().write("game.sav", whole);
  save();
  EXPECT_EQ(content("game.sav.bak"), whole);
  const std::string saved = content();
  EXPECT_EQ(saved, filed(unrecruited));
  fs::remove(file("game.sav.bak"));
  fs::create_directory(file("game.sav.bak"));
  EXPECT_EQ(save(), saveerror);
  EXPECT_EQ(content(), saved);
}

TEST_F(SavedGame, WhatIsNoFileIsAnError) {
  fs::create_directory(file("game.sav"));
  EXPECT_EQ(load(), loaderror);
  EXPECT_EQ(save(), saveerror);
  EXPECT_FALSE(fs::exists(file("game.sav.bak")));
  fs::remove(file("game.sav"));
  ASSERT_TRUE(makepipe(file("game.sav")));
  EXPECT_EQ(load(), loaderror);
  save();
  EXPECT_TRUE(fs::is_regular_file(file("game.sav")));
  EXPECT_TRUE(fs::is_fifo(file("game.sav.damaged")));
}

TEST_F(SavedGame, AFullDiskIsNoticed) {
  load(filed(campaign));
  for (int failure = 0; failure < 3; ++failure) {
    {
      const FullDisk full(20);
      EXPECT_EQ(save(), saveerror);
    }
    EXPECT_EQ(content(), filed(campaign).substr(0, 20));
    EXPECT_EQ(content("game.sav.bak"), filed(campaign));
  }
}

TEST_F(SavedGame, IsOnTheDiskBeforeItsSound) {
  for (bool* refusal : {&refused::synchronizing, &refused::closing}) {
    *refusal = true;
    EXPECT_EQ(save(), saveerror);
    *refusal = false;
    EXPECT_TRUE(save().starts_with("play"));
  }
}

TEST_F(SavedGame, NumbersKeepTheirRanges) {
  EXPECT_EQ(load(filed(campaign + "more")), loaded);
  struct Case {
    int line;
    std::vector<std::string> taken, refused;
  };
  const Case cases[] = {
      {1, {"   -1000000000 ", "", "7"}, {"1000000001", "2.5", "two", "+2", "99999999999999999999"}},
      {4, {"3"}, {"4", "-1"}},
      {5, {"2"}, {"3"}},
      {6, {"4"}, {"5"}},
      {9, {"0", "15"}, {"16", "-1"}},
      {12, {"15"}, {"16"}},
      {14, {" 1"}, {"100", "-1", "1\t"}},
      {26, {"99"}, {"100"}},
      {33, {"-5"}, {"1 1", "x"}},
  };
  for (const Case& numbers : cases) {
    for (const bool good : {true, false}) {
      for (const std::string& text : good ? numbers.taken : numbers.refused) {
        EXPECT_EQ(load(filed(replaced(campaign, numbers.line, text))), good ? loaded : loaderror)
            << numbers.line << ": " << text;
      }
    }
  }
}

TEST_F(SavedGame, WhatWasReadBeforeTheDamageStays) {
  EXPECT_EQ(load(filed(replaced(campaign, 14, " 99 "))), loaderror);  // the file ends early
  EXPECT_EQ(player.game().missionnumber, 3);
  EXPECT_EQ(player.game().mob(1).mobname, "Owl, the");
  EXPECT_FALSE(player.game().mob(1).fight.isset());
  EXPECT_EQ(player.game().menuname, screen::mainmenu);
}

}  // namespace
}  // namespace duskmarch
