// Whom enemies chase, what they may choose, and what becomes of it.
#include "resolution/enemies.h"

#include "cases.h"
#include "draws.h"
#include "ground.h"
#include "harness.h"
#include "resolution/endturn.h"

namespace duskmarch {
namespace {

TEST(Enemies, TheNearestHeroIsTheTargetAndACoinDecidesAmongEquals) {
  struct Choice {
    std::string heroes;
    std::vector<Draw> coins;
    int target;
  };
  const std::vector<Choice> choices{
      {"Vesper 1,1 20 4 | Nora 4,2 20 4 | Bly 1,3 20 4", {{2, 1}, {2, 1}, {2, 1}}, 2},
      {"Vesper 3,1 20 4 | Nora 4,2 20 4 | Bly 3,3 20 4", {{2, 0}, {2, 0}, {2, 0}}, 1},
      {"Vesper 3,1 20 4 | Nora 4,2 20 4 | Bly 3,3 20 4", {{2, 0}, {2, 1}, {2, 0}}, 2},
      {"Vesper 3,1 20 4 | Nora 4,2 0 4 | Bly 3,3 20 4", {{2, 1}, {2, 1}}, 3},
      // By the straight line 4 tiles are further than 2 and 2.
      {"Vesper 3,3 0 4 | Nora 7,2 20 4 | Bly 1,4 20 4", {{2, 1}, {2, 0}}, 3},
      {"Vesper 3,1 0 4 | Nora 4,2 0 4 | Bly 3,3 -2 4", {}, 0},
  };
  for (const auto& [heroes, coins, target] : choices) {
    Player player;
    Game& game = player.game();
    arrange(game, heroes + " | Tony 3,2 16 3");
    willdraw(game, coins);
    const auto random = game.random;
    pickatarget(game, 4);
    EXPECT_EQ(game.mob(4).target, target) << heroes;
    EXPECT_EQ(drawssince(game, random), static_cast<int>(coins.size())) << heroes;
  }
}

// The last mob is Jessie, who can throw and kick.
void arrangewithjessie(Game& game, const std::string& ground) {
  arrange(game, ground);
  Mob& jessie = game.mob(game.mobcount);
  jessie.mobtype = mobtype::gifted;
  jessie.maxhealth = 9;
  give(game, game.mobcount, "Throw", 2);
  give(game, game.mobcount, "Kick", 2);
}

TEST(Enemies, AnEntryIsChosenAndPerformedAtTheNextEndOfTurn) {
  Player player;
  Game& game = player.game();
  arrangewithjessie(game, "Vesper 1,1 20 4 | Nora 2,1 20 4 | Jessie 1,1 9 3 | Chair 1,1 1");
  listenemyoptions(game, 3);
  EXPECT_EQ(game.list3, (std::vector<std::string>{"[Throw Vesper East]", "[Throw Vesper South]",
                                                  "[Throw Vesper East]", "[Throw chair East]",
                                                  "[Kick East]", "", "", "[Fight]"}));
  willdraw(game, {{8, 4}});
  endturn(game);
  EXPECT_EQ(game.list1.front(), "Jessie is planning to [Kick East] next turn.");
  EXPECT_EQ(game.mob(3).action, "[Kick East]");
  // He walks back to Vesper; Nora is out of reach but for the chair.
  willdraw(game, {{6, 3}});
  endturn(game);
  EXPECT_EQ(described(game),
            "Vesper 1,1 20 4 | Nora 3,1 17 4 [Dazed] | Jessie 1,1 9 3 plans[Fight] | Chair 1,1 1");
}

TEST(Enemies, AGiftedEnemyWalksWithoutEngagingAndPlansEvenDazed) {
  Player player;
  Game& game = player.game();
  arrangewithjessie(game, "Vesper 1,1 20 4 | Jessie 1,2 9 3");
  willdraw(game, {{7, 5}});  // four throws at Vesper, but for the edges; two empty; the fight
  game.mob(2).abilitycount = 1;
  endturn(game);
  EXPECT_EQ(game.turnsummary, "  -End of turn number 1.  Jessie moves to A, 1.");
  game.mob(2).status = "[Dazed]";
  game.mob(2).action.clear();
  willdraw(game, {{3, 2}});  // nothing but the empty entries and the fight
  endturn(game);
  EXPECT_EQ(game.list1.front(), "Jessie shakes off some dizziness and gets to his feet.");
  EXPECT_EQ(game.mob(2).action, "[Fight]");
}

TEST(Enemies, TheChosenEntryIsPerformed) {
  for (const Case& c : readcases("enemies.txt")) {
    SCOPED_TRACE(c.place);
    Player player;
    Game& game = player.game();
    arrangewithjessie(game, c.before);
    const int jessie = game.mobcount;
    game.mob(jessie).action = c.what;
    doenemyoption(game, jessie, game.mob(jessie).action);
    EXPECT_EQ(game.list1.empty() ? "" : game.list1.front(), c.told) << c.what << c.before;
    EXPECT_EQ(described(game), c.after) << c.what << c.before;
    const Ability& used = game.mob(jessie).abilities[c.what.starts_with("[Kick") ? 2 : 1];
    EXPECT_EQ(used.abilityuses, c.told.empty() ? 2 : 1) << c.what << c.before;
  }
}

}  // namespace
}  // namespace duskmarch
