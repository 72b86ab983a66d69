// What the player is told of an enemy's plans.
#include "resolution/enemyreport.h"

#include "cases.h"
#include "ground.h"
#include "harness.h"
#include "values/textfile.h"

namespace duskmarch {
namespace {

TEST(EnemyReport, AnEnemyIsDescribed) {
  for (const Case& c : readcases("enemyreport.txt")) {
    SCOPED_TRACE(c.place);
    Player player;
    Game& game = player.game();
    arrange(game, "Vesper 2,2 20 4 | " + c.before);
    game.cursorx = game.cursory = 2;
    EXPECT_EQ(trim(player.spoken([&] { mobcheck(game); }).back()), c.told) << c.before;
    game.reportedmob = 0;
    EXPECT_EQ(trim(player.spoken([&] { describeenemy(game); }).back()), c.after) << c.before;
    EXPECT_TRUE(game.list1.empty());
  }
}

TEST(EnemyReport, EveryRequestMovesOnToTheNextEnemyOfTheTile) {
  for (const auto report : {mobcheck, describeenemy}) {
    Player player;
    Game& game = player.game();
    arrange(game,
            "Vesper 2,2 20 4 | Nora 2,2 20 4 | Tony 1,1 9 1 | Al 2,2 9 1 | Joe 2,2 0 1 | "
            "Moe 2,2 9 1 | Tito 2,2 9 1");
    game.cursorx = game.cursory = 2;
    for (const auto& [from, to] :
         std::vector<std::pair<int, int>>{{0, 4}, {4, 6}, {6, 7}, {7, 4}, {5, 6}, {12, 4}}) {
      game.reportedmob = from;
      report(game);
      EXPECT_EQ(game.reportedmob, to) << from;
    }
    game.cursorx = game.cursory = 1;
    report(game);
    report(game);
    EXPECT_EQ(game.reportedmob, 3);
  }
}

}  // namespace
}  // namespace duskmarch
