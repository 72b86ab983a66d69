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

}  // namespace
}  // namespace duskmarch
