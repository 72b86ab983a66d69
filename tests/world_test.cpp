// The tables, the narration, and the map in words and pictures.
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "ground.h"
#include "harness.h"
#include "heroturn/messagelog.h"
#include "world/mapspeech.h"
#include "world/narration.h"

namespace duskmarch {
namespace {

TEST(NewMob, StartsFromACleanRecord) {
  Player player;
  Game& game = player.game();
  arrange(game, "Vesper 2,2 20 4 engaged plans[Fight]");
  give(game, 1, "Kick", 2);
  game.mobcount = 0;
  ASSERT_EQ(newmob(game, {.name = "Al", .gender = "m", .health = 5, .x = 3, .y = 1, .fight = 2}),
            1);
  EXPECT_EQ(described(game), "Al 3,1 5 2 t0 busy");
  EXPECT_EQ(game.mob(1).gender, gender::female) << "only a capital M is male";
  EXPECT_EQ(game.mob(1).engaged, 0);
  EXPECT_FALSE(game.mob(1).abilitycount.isset());
  EXPECT_EQ(game.mob(1).startx, 3);
}

TEST(NewMob, WaitsForItsTurn) {
  Player player;
  Game& game = player.game();
  const int slot = newmob(game, {.name = "Al", .health = 5, .x = 2, .y = 2, .spawntime = 3});
  EXPECT_EQ(game.mob(slot).maxhealth, 5);
  EXPECT_EQ(menhere(game, 1, 2, 2, -1, ""), Hundredths{});
}

TEST(Abilities, AreListedOnceAndMayGoBelowNothing) {
  Player player;
  Game& game = player.game();
  arrange(game, "Vesper 2,2 20 4");
  give(game, 1, "Kick", 2);
  give(game, 1, "kick", 1);
  give(game, 1, "Kick", 3);
  useup(game, 1, "kick", 4);
  useup(game, 1, "Throw", 1);
  ASSERT_EQ(game.mob(1).abilitycount, 2);
  EXPECT_EQ(game.mob(1).abilities[1].abilityuses, 5);
  EXPECT_EQ(game.mob(1).abilities[2].abilityuses, -3);
}

TEST(Abilities, KeepWhatAForgottenSlotGaveBack) {
  Player player;
  Game& game = player.game();
  arrange(game, "Vesper 2,2 20 4");
  give(game, 1, "Kick", 2);
  game.mob(1).abilities[1].abilityextra = 7;
  game.mob(1).abilitycount = 0;
  give(game, 1, "Throw", 1);
  EXPECT_EQ(game.mob(1).abilities[1].abilityuses, 1);
  EXPECT_EQ(game.mob(1).abilities[1].abilityextra, 7);
}

TEST(Queries, CountWhoAndWhatIsInPlayOnATile) {
  Player player;
  Game& game = player.game();
  arrange(game,
          "Vesper 2,2 20 4 | Nora 2,2 9 4 [Pinned] | Al 2,2 9 3 [Netted] | Bo 2,2 9 3 "
          "[Netted][Pinned] | Cy 2,2 9 3 [Dazed][Netted] | Di 2,2 0 3 | Ed 2,1 9 3 | "
          "Table 2,2 1 | Table 2,2 1 | Table 2,2 0 | Chair 2,2 1 | Chair 1,2 1");
  EXPECT_EQ(menhere(game, 1, 2, 2, -1, "").text(), "5");
  EXPECT_EQ(menhere(game, 3, 2, 2, -1, "").text(), "3");
  EXPECT_EQ(menhere(game, 1, 2, 2, aliance::enemies, "").text(), "3");
  EXPECT_EQ(menhere(game, 1, 2, 2, aliance::heroes, "fight").text(), "1.9");
  EXPECT_EQ(menhere(game, 1, 2, 2, aliance::enemies, "fight").text(), "0.9");
  EXPECT_EQ(itemshere(game, 1, 2, 2), 3);
  EXPECT_EQ(itemshere(game, 2, 2, 2), 2);
  EXPECT_EQ(finditem(game, 2, 2, "Table"), 2);
  EXPECT_EQ(finditem(game, 1, 2, "Table"), 0);
}

TEST(Tiles, HaveNoTagsBeyondTheGrid) {
  Player player;
  for (const auto& [x, y] : {std::pair{-1, 3}, {3, 16}, {16, -1}}) {
    addtiletag(player.game(), x, y, "[Smoke]", 2);
    EXPECT_EQ(tiletags(player.game(), x, y), "");
  }
}

TEST(Narration, FillsInWhoItIsAbout) {
  Player player;
  Game& game = player.game();
  arrange(game, "Vesper 1,1 20 4 | Tony$C 1,1 9 3 | Moe 1,1 9 3");
  game.mob(3).gender = gender::genderless;
  game.storyword = "rain";
  const std::pair<std::string, std::string> cases[] = {
      {"$A, on $AHIS nightly patrol", "Vesper, on her nightly patrol"},
      {"$AHE, $AHIM; $BHE, $BHIM, $BHIS; $CHE $CHIM $CHIS", "she, her; he, him, his; it it its"},
      {"$B, $C and $AHERE", "TonyMoe, Moe and sheRE"},
      {"$S on $N, $a and 5$", "rain on $N, $a and 5$"}};
  for (const auto& [text, translated] : cases) EXPECT_EQ(translate(game, text), translated);
  game.mob(2) = Mob{};
  EXPECT_EQ(translate(game, "$B:$BHE:$BHIS"), "::");
}

TEST(MessageLog, KeepsTheNewestLineFirst) {
  Player player;
  Game& game = player.game();
  arrange(game, "Vesper 1,1 20 4");
  game.summarylabel.lines = {"-Begins"};
  list1additem(game, "  $A waits.  ");
  EXPECT_EQ(player.during([&] { list1additem(game, "Rain.  "); }), Player::Events{"voice\t"});
  EXPECT_EQ(std::vector<std::string>(game.list1.begin(), game.list1.end()),
            (std::vector<std::string>{"Rain.", "Vesper waits."}));
  EXPECT_EQ(game.summarylabel.text(), "Rain.\r\nVesper waits.\r\n-Begins");
  EXPECT_EQ(game.turnsummary, "  Vesper waits.  Rain.");
}

TEST(MapSpeech, NamesColumnsByLetters) {
  EXPECT_EQ(saycoords(0) + saycoords(1) + saycoords(26) + saycoords(27), "AZ");
  EXPECT_EQ(location(3, 12), "C, 12");
}

TEST(MapSpeech, TellsWhatIsOnATile) {
  const struct {
    std::string ground, tags, said;
  } cases[] = {
      {"Vesper 1,1 20 4 | Al 2,3 0 4 | Chair 2,3 0", "", "B 3, "},
      {"Vesper 2,3 20 4 [Pinned][Dazed]", "", "B 3, 1 here.  dazed Vesper.  "},
      {"Al 2,3 9 3 [Pinned][Netted] | Bo 2,3 9 3 [Pinned]", "",
       "B 3, 2 here.  netted Al and pinned Bo.  "},
      {"Al 2,3 9 3 | Vesper 2,3 20 4 | Nora 2,3 9 4 | Bly 2,3 9 4 | Table 2,3 1 | Chair 2,3 1", "",
       "B 3, 4 here.  Vesper, Nora and Bly.  Al.  There is a Table and Chair here."},
      {"Vesper 1,1 20 4 | Chair 2,3 1", "[Table][Smoke]",
       "Smokey B 3, There is an overturned table here providing cover.  There is a Chair here."}};
  for (const auto& [ground, tags, said] : cases) {
    Player player;
    arrange(player.game(), ground);
    addtiletag(player.game(), 2, 3, tags, 1);
    EXPECT_EQ(player.spoken([&] { saytile(player.game(), 2, 3); }).at(0), said);
  }
}

TEST(MapSpeech, CallsTheRolls) {
  Player player;
  Game& game = player.game();
  arrange(game, "Vesper 2,2 20 4 | Al 4,1 9 3 | Nora 1,3 9 4 | Bo 1,1 0 3 | Table 3,3 1");
  EXPECT_EQ(player.spokenby(key::z), std::vector<std::string>{"Vesper at B, 2.  Nora at A, 3.  "});
  EXPECT_EQ(player.spokenby(key::x), std::vector<std::string>{"Al at D, 1.  "});
  EXPECT_EQ(player.spokenby(key::c), std::vector<std::string>{"Table at C, 3.  "});
  game.mobcount = game.itemcount = 0;
  EXPECT_EQ(player.spokenby(key::z), std::vector<std::string>{"No heroes found"});
  EXPECT_EQ(player.spokenby(key::x), std::vector<std::string>{"No enemies found"});
  EXPECT_EQ(player.spokenby(key::c), std::vector<std::string>{"No furnature found"});
}

TEST(FightModifier, FollowsConditionsAndCompany) {
  const std::pair<std::string, std::string> cases[] = {
      {"Vesper 2,2 20 4 | Nora 2,1 9 4", "0"},
      {"Vesper 2,2 20 4 [Dazed]", "-3.2"},
      {"Vesper 2,2 20 4 [Pinned][Netted][Dazed]", "-4.6"},
      {"Vesper 2,2 20 4 | Nora 2,2 9 4 | Al 2,2 9 3", "1"},
      {"Vesper 2,2 20 4 [Pinned] | Nora 2,2 9 4", "-1"},
      {"Vesper 2,2 20 4 [Netted] | Nora 2,2 9 4 | Bly 2,2 9 4 [Netted]", "1"},
      {"Vesper 2,2 20 5 | Nora 2,2 9 4 | Bly 2,2 9 4", "2.5"},
      {"Vesper 2,2 20 5 | Nora 2,2 9 4 | Bly 2,2 9 4 | Nora 2,2 9 4", "3.75"},
      {"Vesper 2,2 20 5 | Nora 2,2 9 4 | Bly 2,2 9 4 | Nora 2,2 9 4 | Bly 2,2 9 4 | "
       "Nora 2,2 9 4 [Netted]",
       "5"}};
  for (const auto& [ground, modifier] : cases) {
    Player player;
    arrange(player.game(), ground);
    EXPECT_EQ(calcfight2(player.game(), 1).text(), modifier) << ground;
  }
}

TEST(DrawnMap, ShowsEveryoneAndEverything) {
  Player player;
  Game& game = player.game();
  game.menuname = screen::map;
  arrange(game,
          "Vesper 1,1 20 4 | Al 1,1 9 3 gun engaged [Dazed] plans[Loaded] | Nora 1,2 9 4 | "
          "Table 1,2 1 | Chair 1,2 1");
  game.mapwidth = 1;
  game.mapheight = 2;
  game.cursorx = game.cursory = 1;
  addtiletag(game, 1, 2, "[Smoke]", 1);
  EXPECT_EQ(player.during([&] { player.session().perform("draw"); }),
            (Player::Events{"> draw",
                            "fill\t0\t101\t1288\t559\t000000",
                            "text\t35\t200\tMS Sans Serif\t8\tFFFFFF\t1",
                            "text\t100\t135\tMS Sans Serif\t8\tFFFFFF\tA",
                            "outline\t50\t150\t100\t100\tFFFFFF",
                            "outline\t53\t153\t94\t94\tFF00FF",
                            "text\t35\t300\tMS Sans Serif\t8\tFFFFFF\t2",
                            "outline\t50\t250\t100\t100\tFFFFFF",
                            "outline\t52\t252\t96\t96\tFFFFFF",
                            "outline\t54\t254\t92\t92\tFFFFFF",
                            "text\t90\t337\tMS Sans Serif\t8\tFFFFFF\t[Smoke]",
                            "text\t55\t177\tMS Sans Serif\t8\t64FF64\tVesper (20)",
                            "text\t65\t187\tMS Sans Serif\t8\t64FF64\tF=4 A=",
                            "text\t55\t177\tMS Sans Serif\t8\tFFFF00\tVesper",
                            "text\t55\t155\tMS Sans Serif\t8\tFFB482\tAl (9) *E*[Dazed]",
                            "text\t65\t165\tMS Sans Serif\t8\tFFB482\tF=3-2.4 A=[Loaded]",
                            "text\t55\t155\tMS Sans Serif\t8\tFF0000\tAl",
                            "text\t55\t255\tMS Sans Serif\t8\t64FF64\tNora (9)",
                            "text\t65\t265\tMS Sans Serif\t8\t64FF64\tF=4 A=",
                            "text\t55\t255\tMS Sans Serif\t8\t00FF00\tNora",
                            "text\t55\t319\tMS Sans Serif\t8\tFFFFFF\t[Table]",
                            "text\t55\t305\tMS Sans Serif\t8\tFFFFFF\t[Chair]"}));
  game.menuname = screen::hideout;
  EXPECT_EQ(player.during([&] { player.session().perform("draw"); }).size(), 2U);
  game.mapwidth = 0;
  EXPECT_EQ(player.during([&] { player.session().perform("draw"); }).size(), 1U);
}

}  // namespace
}  // namespace duskmarch
