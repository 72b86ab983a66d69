// Hand-to-hand fighting, worked out by hand.
#include "resolution/melee.h"

#include "cases.h"
#include "ground.h"
#include "harness.h"
#include "values/textfile.h"

namespace duskmarch {
namespace {

TEST(Melee, AnExchangeOfBlowsFollowsFromTheNumbersAlone) {
  for (const Case& c : readcases("melee.txt")) {
    SCOPED_TRACE(c.place);
    Player player;
    arrange(player.game(), c.before);
    player.game().mob(1).target = 2;
    EXPECT_EQ(trim(meleeexchange(player.game(), 1)), c.told) << c.before;
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
  EXPECT_EQ(game.turnsummary, "  Vesper regains 1 fighting point.");
  EXPECT_EQ(game.mob(1).fight, 2);
}

}  // namespace
}  // namespace duskmarch
