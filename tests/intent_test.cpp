// What the player is told of an enemy's plans.
#include "resolution/intent.h"

#include "ground.h"
#include "harness.h"

namespace duskmarch {
namespace {

struct Report {
  std::string enemy;  // in slot 2; the cursor is on 2,2
  std::string onm;
  std::string onv;
};

const std::vector<Report> reports{
    {"Vicky 2,2 5 3 gun plans[Reload]",
     "Vicky has 5 health, fighting skill 3. she will reload her gun when you end your turn.  ",
     "Vicky, health 5, fighting skill 3.    she plans to [Reload] next turn.  "},
    {"Moe 2,2 5 3 gun plans[Loaded]",
     "Moe has 5 health, fighting skill 3. he will finish reloading and aim his gun when you end "
     "your turn.  ",
     "Moe, health 5, fighting skill 3.    he plans to [Loaded] next turn.  "},
    {"Moe 2,2 5 3 gun plans[Shoot,4,1]",
     "Moe has 5 health, fighting skill 3. he will fire his gun at location D 1 when you end your "
     "turn.  ",
     "Moe, health 5, fighting skill 3.    he plans to [Shoot,4,1] next turn.  "},
    {"Tony 2,2 16 3 [Pinned][Dazed] plans[Fight]",
     "Tony is dazed and pinned,  with 16 health, fighting skill 3. he will fight when you end your "
     "turn.  ",
     "Tony is pinned is dazed, health 16, fighting skill 3.    he plans to [Fight] next turn.  "},
    {"Tony 2,2 16 3 [Pinned][Netted][Dazed] plans[Odd]",
     "Tony is dazed, netted and pinned,  with 16 health, fighting skill 3. ",
     "Tony is pinned is dazed is netted, health 16, fighting skill 3.    he plans to [Odd] next "
     "turn.  "},
    // A crowd of 3 adds half of 4; of 2 a quarter of 3.
    {"Tony 2,2 16 4 | Al 2,2 9 1 | Joe 2,2 9 1", "Tony has 16 health, fighting skill 4 + 2. ",
     "Tony, health 16, fighting skill 4.  "},
    {"Tony 2,2 16 3 | Al 2,2 9 1 | Joe 2,1 9 1", "Tony has 16 health, fighting skill 3 + 0.75. ",
     "Tony, health 16, fighting skill 3.  "},
    {"Tony 2,2 0 3 | Al 2,1 9 1", "No enemies here.", "No enemies here."},
};

TEST(Intent, AnEnemyIsDescribed) {
  for (const Report& c : reports) {
    Player player;
    Game& game = player.game();
    arrange(game, "Vesper 2,2 20 4 | " + c.enemy);
    game.cursorx = game.cursory = 2;
    EXPECT_EQ(player.spoken([&] { mobcheck(game); }), std::vector{c.onm}) << c.enemy;
    game.reportedmob = 0;
    EXPECT_EQ(player.spoken([&] { describeenemy(game); }), std::vector{c.onv}) << c.enemy;
    EXPECT_TRUE(game.list1.empty());
  }
}

TEST(Intent, EveryRequestMovesOnToTheNextEnemyOfTheTile) {
  for (const auto report : {mobcheck, describeenemy}) {
    Player player;
    Game& game = player.game();
    arrange(game,
            "Vesper 2,2 20 4 | Nora 2,2 20 4 | Tony 1,1 9 1 | Al 2,2 9 1 | Joe 2,2 0 1 | "
            "Moe 2,2 9 1 | Tito 2,2 9 1");
    game.cursorx = game.cursory = 2;
    for (const auto& [from, to] :
         std::vector<std::pair<int, int>>{{0, 4}, {4, 6}, {6, 7}, {7, 4}, {5, 6}, {99, 4}}) {
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
