// Hand-to-hand fighting, worked out by hand.
#include "resolution/melee.h"

#include "ground.h"
#include "harness.h"

namespace duskmarch {
namespace {

struct Exchange {
  std::string before;  // slot 1 strikes slot 2
  std::string report;
  std::string after;
};

const std::vector<Exchange> exchanges{
    // 0 and 0: nobody wears, nobody counts as busy.
    {"Vesper 1,1 20 0 | Tony 1,1 16 0",
     "Vesper and Tony square eachother up, pausing to catch their breath.  ",
     "Vesper 1,1 20 0 t2 | Tony 1,1 16 0"},
    // 0.2 and 0: less than a whole point, against nothing.
    {"Vesper 1,1 20 1 [Dazed] | Tony 1,1 16 0", "Vesper fights with Tony.  ",
     "Vesper 1,1 20 1 t2 [Dazed] | Tony 1,1 16 0"},
    // 1 and 1.2: 0.8 of a point is none, but it tires.
    {"Vesper 1,1 20 1 | Tony 1,1 16 6 [Dazed]", "Vesper fights with Tony.    No damage is dealt.  ",
     "Vesper 1,1 20 0 t2 busy | Tony 1,1 16 6 busy [Dazed]"},
    // 3 and 1.
    {"Vesper 1,1 20 3 | Tony 1,1 16 1", "Vesper fights with Tony.    Tony loses 8 health.  ",
     "Vesper 1,1 20 2 t2 busy | Tony 1,1 8 1 busy"},
    // 1 and 2.8: 7.2 points are 7.
    {"Vesper 1,1 20 1 | Tony 1,1 16 14 [Dazed]",
     "Vesper fights with Tony.    Vesper loses 7 health.  ",
     "Vesper 1,1 13 1 t2 busy | Tony 1,1 16 13 busy [Dazed]"},
    // All three conditions at once: 10 x 0.2 x 0.5 - 1 is 0, and 1 is stronger.
    {"Vesper 1,1 20 1 | Tony 1,1 16 10 [Netted][Dazed][Pinned]",
     "Vesper fights with Tony.    Tony loses 4 health.  ",
     "Vesper 1,1 20 0 t2 busy | Tony 1,1 12 10 busy [Netted][Dazed][Pinned]"},
    // A netted ally makes a crowd of 1.5, which is none: 4. A dazed one is company for Tony: 2.5.
    {"Vesper 1,1 20 4 | Tony 1,1 16 2 | Nora 1,1 20 1 [Netted] | Al 1,1 16 3 [Dazed]",
     "Vesper fights with Tony.    Tony loses 6 health.  ",
     "Vesper 1,1 20 3 t2 busy | Tony 1,1 10 2 busy | Nora 1,1 20 1 [Netted] | Al 1,1 16 3 [Dazed]"},
    // Two netted allies make exactly 2: 5. Company lifts the net off Tony: 2.5.
    {"Vesper 1,1 20 4 | Tony 1,1 16 2 [Netted] | Nora 1,1 20 1 [Netted] | Bly 1,1 20 1 [Netted] | "
     "Al 1,1 9 9",
     "Vesper fights with Tony.    Tony loses 10 health.  ",
     "Vesper 1,1 20 3 t2 busy | Tony 1,1 6 2 busy [Netted] | Nora 1,1 20 1 [Netted] | "
     "Bly 1,1 20 1 [Netted] | Al 1,1 9 9"},
    // A knockout earns a hero a point, and ends the plan that was nothing but this fight.
    {"Vesper 1,1 20 6 plans[Fight] | Tony 1,1 16 2",
     "Vesper fights with Tony.    Tony loses 16 health and falls to the floor unconscious.  ",
     "Vesper 1,1 20 5 p1 busy | Tony 1,1 0 2 busy"},
    {"Vesper 1,1 20 6 plans[Shield][Fight] | Tony 1,1 16 2",
     "Vesper fights with Tony.    Tony loses 16 health and falls to the floor unconscious.  ",
     "Vesper 1,1 20 5 p1 busy plans[Shield][Fight] | Tony 1,1 0 2 busy"},
    // Whoever is knocked out while striking earns nobody anything.
    {"Tony 1,1 3 1 plans[Fight] | Vesper 1,1 20 2 plans[Fight]",
     "Tony fights with Vesper.    Tony loses 4 health and falls to the floor unconscious.  ",
     "Tony 1,1 -1 1 t2 busy plans[Fight] | Vesper 1,1 20 1 busy"},
    // 0 against -1 wins, and no skill falls below 0.
    {"Vesper 1,1 20 0 | Tony 1,1 16 0 [Pinned]",
     "Vesper fights with Tony.    Tony loses 4 health.  ",
     "Vesper 1,1 20 0 t2 busy | Tony 1,1 12 0 busy [Pinned]"},
};

TEST(Melee, AnExchangeOfBlowsFollowsFromTheNumbersAlone) {
  for (const Exchange& c : exchanges) {
    Player player;
    arrange(player.game(), c.before);
    player.game().mob(1).target = 2;
    EXPECT_EQ(meleeexchange(player.game(), 1), c.report) << c.before;
    EXPECT_EQ(described(player.game()), c.after) << c.before;
  }
}

TEST(Melee, AMobIsHeldByAnyFreeOpponentOnItsTileWhoPlansToFight) {
  const std::vector<std::pair<std::string, int>> cases{
      {"Tony 1,1 16 3 plans[Shield][Fight]", 1},
      {"Tony 1,1 16 3 plans[Reload]", 0},
      {"Tony 1,1 16 0 plans[Fight]", 0},
      {"Tony 1,1 0 3 plans[Fight]", 0},
      {"Tony 1,1 16 3 [Pinned] plans[Fight]", 0},
      {"Tony 2,1 16 3 plans[Fight]", 0},
      {"Nora 1,1 20 3 plans[Fight]", 0},
      {"Tony 1,1 16 3 | Al 1,1 16 3 plans[Fight] | Joe 1,1 16 3", 1},
  };
  for (const auto& [others, held] : cases) {
    Player player;
    arrange(player.game(), "Vesper 1,1 20 4 | " + others);
    player.game().mob(1).engaged = 1 - held;
    engagedcheck(player.game(), 1);
    EXPECT_EQ(player.game().mob(1).engaged, held) << others;
  }
}

TEST(Melee, OnlyTheRestedFreeAndConsciousRegainAPoint) {
  Player player;
  Game& game = player.game();
  arrange(game,
          "Vesper 1,1 20 1 | Nora 1,1 20 3 | Tony 1,1 16 1 [Netted] | Al 1,1 0 1 | Joe 1,1 16 1");
  for (int slot = 1; slot <= game.mobcount; ++slot) game.mob(slot).maxfight = 3;
  game.mob(5).rested = 0;
  regainfightingpoints(game);
  EXPECT_EQ(described(game),
            "Vesper 1,1 20 2 | Nora 1,1 20 3 | Tony 1,1 16 1 [Netted] | Al 1,1 0 1 | "
            "Joe 1,1 16 1 busy");
  EXPECT_EQ(game.turnsummary, "  Vesper regains 1 fighting point.");
}

}  // namespace
}  // namespace duskmarch
