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

}  // namespace
}  // namespace duskmarch
