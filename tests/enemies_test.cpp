// Whom enemies chase, what they may choose, and what becomes of it.
#include "resolution/enemies.h"

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
  EXPECT_EQ(game.listingfor, 0);
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

struct Deed {
  std::string entry;
  std::string before;
  std::string line;  // empty: nothing is told, and no use spent
  std::string after;
};

const std::vector<Deed> deeds{
    {"[Kick East]", "Vesper 3,2 20 4 plans[Fight] | Nora 3,2 3 4 | Jessie 2,2 9 5",
     "Jessie jump kicked to the East, knocking Nora back and dazing him.  Nora suffered 5 damage "
     "and was knocked unconscious.",
     "Vesper 3,2 20 4 plans[Fight] | Nora 4,2 -2 4 [Dazed][Dazed] | Jessie 3,2 9 5"},
    // Against the edge of the map the kicked hero stays.
    {"[Kick North]", "Vesper 2,1 20 4 | Jessie 2,2 9 5",
     "Jessie jump kicked to the North, knocking Vesper back and dazing her.  Vesper suffered 5 "
     "damage.",
     "Vesper 2,1 15 4 [Dazed][Dazed] | Jessie 2,1 9 5"},
    {"[Kick West]", "Vesper 2,1 20 4 | Jessie 2,2 9 5",
     "Jessie jump kicked to the West, but missed his target.", "Vesper 2,1 20 4 | Jessie 1,2 9 5"},
    {"[Throw Vesper South]",
     "Vesper 2,2 20 4 [Pinned][Netted][Pinned] | Nora 2,3 20 4 | Bly 2,3 20 4 | Al 2,3 9 1 | "
     "Jessie 2,2 9 5",
     "Jessie picks up Vesper and throws her South.  Nora and Bly was knocked over as Vesper came "
     "crashing down.",
     "Vesper 2,3 20 4 [Netted][Dazed][Dazed] | Nora 2,3 20 4 [Dazed][Dazed] | "
     "Bly 2,3 20 4 [Dazed][Dazed] | Al 2,3 9 1 | Jessie 2,2 9 5"},
    {"[Throw Vesper South]", "Vesper 2,1 20 4 | Jessie 2,2 9 5", "",
     "Vesper 2,1 20 4 | Jessie 2,2 9 5"},
    {"[Throw table West]",
     "Vesper 1,2 20 4 | Nora 1,2 6 4 | Jessie 2,2 9 5 | Table 2,2 1 | Table 2,2 1",
     "Jessie picks up a table and throws it West.  Vesper and Nora was knocked over as the table "
     "came crashing down.  Nora was knocked unconscious.  The table has splintered into scraps of "
     "wood.",
     "Vesper 1,2 14 4 [Dazed][Dazed] | Nora 1,2 0 4 [Dazed][Dazed] | Jessie 2,2 9 5 | "
     "Table 2,2 1 | Table 1,2 0"},
    {"[Throw table West]", "Vesper 1,2 20 4 | Jessie 2,2 9 5 | Table 2,2 0", "",
     "Vesper 1,2 20 4 | Jessie 2,2 9 5 | Table 2,2 0"},
    // The first hero in line alone.
    {"[Throw chair West]",
     "Vesper 1,2 20 4 | Nora 2,2 4 4 plans[Fight] | Bly 2,2 9 4 | Jessie 4,2 9 5 | Chair 4,2 2",
     "Jessie grabs a chair and hurls it West.  Nora was hit by it and suffered 4 damage.  Nora was "
     "knocked unconscious by the impact.",
     "Vesper 1,2 20 4 | Nora 2,2 0 4 [Dazed][Dazed] | Bly 2,2 9 4 | Jessie 4,2 9 5 | Chair 2,2 1"},
    {"[Throw chair South]", "Vesper 2,1 20 4 | Jessie 2,2 9 5 | Chair 2,2 1",
     "Jessie grabs a chair and hurls it South.", "Vesper 2,1 20 4 | Jessie 2,2 9 5 | Chair 2,2 1"},
    {"[Throw chair North]", "Vesper 2,1 20 4 | Jessie 2,2 9 5 | Chair 2,1 1", "",
     "Vesper 2,1 20 4 | Jessie 2,2 9 5 | Chair 2,1 1"},
    {"[Fight]", "Vesper 2,2 20 4 | Jessie 2,2 9 5", "", "Vesper 2,2 20 4 | Jessie 2,2 9 5"},
    {"[Kick Upwards]", "Vesper 2,1 20 4 | Jessie 2,2 9 5", "", "Vesper 2,1 20 4 | Jessie 2,2 9 5"},
};

TEST(Enemies, TheChosenEntryIsPerformed) {
  for (const Deed& c : deeds) {
    Player player;
    Game& game = player.game();
    arrangewithjessie(game, c.before);
    const int jessie = game.mobcount;
    game.mob(jessie).action = c.entry;
    doenemyoption(game, jessie, game.mob(jessie).action);
    EXPECT_EQ(game.list1.empty() ? "" : game.list1.front(), c.line) << c.entry << c.before;
    EXPECT_EQ(described(game), c.after) << c.entry << c.before;
    const Ability& used = game.mob(jessie).abilities[c.entry.starts_with("[Kick") ? 2 : 1];
    EXPECT_EQ(used.abilityuses, c.line.empty() ? 2 : 1) << c.entry << c.before;
  }
}

}  // namespace
}  // namespace duskmarch
