// The end of turn, phase by phase, as a player hears it.
#include "resolution/endturn.h"

#include "draws.h"
#include "ground.h"
#include "harness.h"

namespace duskmarch {
namespace {

struct Turn {
  std::string before;
  std::string tags;         // of tile 2,2
  std::vector<Draw> draws;  // all that there are
  std::string heard;
  std::string after;
};

// On the map of 4 by 3 tiles. Gunmen do 6 damage; heroes who plan to fight target the last mob.
void arrangeturn(Game& game, const Turn& c) {
  arrange(game, c.before);
  for (int slot = 1; slot <= game.mobcount; ++slot) {
    Mob& mob = game.mob(slot);
    if (mob.mobtype == mobtype::gunman) mob.gun = 6;
    if (mob.aliance == aliance::heroes && mob.action == "[Fight]") mob.target = game.mobcount;
  }
  game.tilefx[2][2] = c.tags;
  willdraw(game, c.draws);
}

void check(const std::vector<Turn>& turns) {
  for (const Turn& c : turns) {
    Player player;
    Game& game = player.game();
    arrangeturn(game, c);
    const auto random = game.random;
    const auto spoken = player.spoken([&] { endturn(game); });
    EXPECT_EQ(spoken, std::vector<std::string>{"  -End of turn number 1." + c.heard}) << c.before;
    EXPECT_EQ(described(game), c.after) << c.before;
    EXPECT_EQ(drawssince(game, random), static_cast<int>(c.draws.size())) << c.before;
  }
}

constexpr int west = 0, east = 1, north = 2, south = 3, nostep = 4;

TEST(EndOfTurn, GunmenLoadAndAim) {
  check({
      // A step that leads off the map, or out of smoke, is not taken.
      {"Vesper 1,3 20 4 | Moe 1,1 16 3 gun plans[Reload]",
       "",
       {{7, west}},
       "  Moe loads his gun.",
       "Vesper 1,3 20 4 | Moe 1,1 16 3 gun plans[Loaded]"},
      {"Vesper 1,3 20 4 | Vicky 1,1 16 3 gun plans[Reload]",
       "",
       {{7, east}},
       "  Vicky moves to B, 1 and loaded her gun.",
       "Vesper 1,3 20 4 | Vicky 2,1 16 3 gun plans[Loaded]"},
      {"Vesper 1,3 20 4 | Moe 2,2 16 3 gun plans[Reload]",
       "",
       {{7, south}},
       "  Moe moves to B, 3 and loaded his gun.",
       "Vesper 1,3 20 4 | Moe 2,3 16 3 gun plans[Loaded]"},
      {"Vesper 1,3 20 4 | Moe 2,2 16 3 gun plans[Reload]",
       "[Smoke][Smoke]",
       {{7, north}},
       "  Moe loads his gun.",
       "Vesper 1,3 20 4 | Moe 2,2 16 3 gun plans[Loaded]"},
      {"Vesper 1,3 20 4 | Moe 2,2 16 3 gun plans[Reload]",
       "",
       {{7, nostep}},
       "  Moe loads his gun.",
       "Vesper 1,3 20 4 | Moe 2,2 16 3 gun plans[Loaded]"},
      {"Vesper 2,2 20 4 | Vicky 4,1 16 3 gun plans[Loaded]",
       "",
       {},
       "  Vicky aims her gun at Vesper, at B, 2.",
       "Vesper 2,2 20 4 | Vicky 4,1 16 3 gun plans[Shoot,2,2]"},
      {"Vesper 2,2 20 4 | Moe 4,1 16 3 gun plans[Loaded]",
       "[Smoke]",
       {},
       "  Smoke has cleared.",
       "Vesper 2,2 20 4 | Moe 4,1 16 3 gun plans[Loaded]"},
      // Nobody is left to aim at.
      {"Vesper 2,2 0 4 | Moe 4,1 16 3 gun plans[Loaded]",
       "",
       {},
       "",
       "Vesper 2,2 0 4 | Moe 4,1 16 3 gun t0 plans[Loaded]"},
      // Any condition holds a gunman back; an idle one will reload.
      {"Vesper 2,2 20 4 | Moe 4,1 16 3 gun [Pinned] plans[Shoot,2,2] | Al 4,1 9 3 gun",
       "",
       {},
       "  Moe finally yanks out the knife that had him pinned.",
       "Vesper 2,2 20 4 | Moe 4,1 16 3 gun plans[Shoot,2,2] | Al 4,1 9 3 gun plans[Reload]"},
  });
}

TEST(EndOfTurn, AVolleyHitsWhoeverStandsThere) {
  check({
      // Both sides, and every death earns some hero a point.
      {"Vesper 2,2 20 4 | Nora 2,2 6 4 | Bly 2,2 20 4 plans[Shield] | Tony 2,2 5 0 | "
       "Moe 4,1 16 3 gun plans[Shoot,2,2]",
       "",
       {{3, 2}, {3, 1}},
       "  Moe fires his gun at location B, 2.  Vesper, Nora and Tony were shot by Moe, suffering "
       "6 damage.  Nora and Tony dropped dead from the injuries.  Bly was safe behind a shield.",
       "Vesper 2,2 14 4 | Nora 2,2 0 4 p1 | Bly 2,2 20 4 p1 | Tony 2,2 -1 0 | "
       "Moe 4,1 16 3 gun plans[Reload]"},
      // The point is drawn for until the slot holds a hero.
      {"Vesper 2,2 6 4 | Moe 4,1 16 3 gun plans[Shoot,2,2] | Tony 4,2 16 3",
       "",
       {{3, 1}, {3, 2}, {3, 0}},
       "  Moe fires his gun at location B, 2.  Vesper was shot by Moe, suffering 6 damage.  "
       "Vesper dropped dead from the injuries.  Tony moves to C, 2.",
       "Vesper 2,2 0 4 p1 | Moe 4,1 16 3 gun plans[Reload] | Tony 3,2 16 3"},
      {"Vesper 2,2 20 4 plans[Shield][Shield] | Moe 4,1 16 3 gun plans[Shoot,2,2]",
       "",
       {},
       "  Moe fires his gun at location B, 2, but hits nothing.",
       "Vesper 2,2 20 4 plans[Shield] | Moe 4,1 16 3 gun plans[Reload]"},
      {"Vesper 2,2 20 4 | Moe 4,1 16 3 gun plans[Shoot,2,2]",
       "[Table][Smoke][Smoke]",
       {},
       "  Moe unleashes a hail of bullets into the thick smoke at location B, 2, but hits nothing.",
       "Vesper 2,2 20 4 | Moe 4,1 16 3 gun plans[Reload]"},
      {"Vesper 2,2 20 4 | Moe 4,1 16 3 gun plans[Shoot,2,2]",
       "[Table]",
       {},
       "  Moe unleashes a hail of bullets at location B, 2, but the overturned table absorbs the "
       "shots.",
       "Vesper 2,2 20 4 | Moe 4,1 16 3 gun plans[Reload]"},
      // Tags of a strange saved game: no place is 0,0, and without heroes nobody is credited.
      {"Moe 4,1 16 3 gun plans[Shoot,",
       "",
       {},
       "  Moe fires his gun at location , 0, but hits nothing.",
       "Moe 4,1 16 3 gun plans[Shoot,"},
      {"Moe 4,1 6 3 gun plans[Shoot,4,1junk]",
       "",
       {},
       "  Moe fires his gun at location D, 1.  Moe was shot by Moe, suffering 6 damage.  Moe "
       "dropped dead from the injuries.",
       "Moe 4,1 0 3 gun plans[Shoot,4,1junk]"},
      {"Moe 4,1 6 3 gun plans[Shoot,-99999999999,99999999999]",
       "",
       {},
       "  Moe fires his gun at location , 1000000000, but hits nothing.",
       "Moe 4,1 6 3 gun plans[Shoot,-99999999999,99999999999]"},
  });
}

TEST(EndOfTurn, FightsGoOnOrAreCalledOff) {
  check({
      // Slot 1 strikes first, 5 against 1, and leaves slot 2 nobody to fight.
      {"Vesper 2,2 20 4 plans[Fight] | Nora 2,2 20 4 plans[Fight] | Tony 2,2 8 1",
       "",
       {},
       "  Vesper fights with Tony.    Tony loses 16 health and falls to the floor unconscious.",
       "Vesper 2,2 20 3 p1 busy | Nora 2,2 20 4 | Tony 2,2 -8 1 busy"},
      {"Vesper 2,2 20 4 plans[Fight] | Moe 3,2 16 3 gun plans[Loaded]",
       "[Smoke][Smoke]",
       {},
       "",
       "Vesper 2,2 20 4 | Moe 3,2 16 3 gun plans[Loaded]"},
      // Nobody strikes an ally.
      {"Vesper 2,2 20 4 plans[Fight] | Nora 2,2 20 4",
       "",
       {},
       "",
       "Vesper 2,2 20 4 | Nora 2,2 20 4"},
      // Blows leave no time to struggle with the net: 3 against 2.
      {"Vesper 2,2 20 4 [Netted] | Tony 2,2 16 3 plans[Fight]",
       "",
       {},
       "  Tony fights with Vesper.    Vesper loses 4 health.",
       "Vesper 2,2 16 4 busy [Netted] | Tony 2,2 16 2 busy plans[Fight]"},
      // A fight called off gives the turn back, even to the gun that was aimed in it.
      {"Vesper 2,2 20 4 | Moe 4,1 16 3 gun plans[Loaded][Fight]",
       "",
       {{2, 0}},
       "  Moe fires his gun at location B, 2.  Vesper was shot by Moe, suffering 6 damage.",
       "Vesper 2,2 14 4 | Moe 4,1 16 3 gun plans[Reload]"},
  });
}

TEST(EndOfTurn, EnemiesWalkToTheirTarget) {
  check({
      {"Vesper 4,1 20 4 | Tony 1,1 16 3",
       "",
       {},
       "  Tony moves to B, 1.",
       "Vesper 4,1 20 4 | Tony 2,1 16 3"},
      {"Vesper 4,1 20 4 | Tony 2,3 16 3",
       "",
       {{2, 0}},
       "  Tony moves to C, 3.",
       "Vesper 4,1 20 4 | Tony 3,3 16 3"},
      {"Vesper 4,1 20 4 | Tony 1,3 16 3",
       "",
       {{2, 1}},
       "  Tony moves to A, 2.",
       "Vesper 4,1 20 4 | Tony 1,2 16 3"},
      {"Vesper 1,1 20 4 | Tony 1,2 16 3",
       "",
       {},
       "  Tony moves to A, 1 and engages Vesper in a fight.",
       "Vesper 1,1 20 4 | Tony 1,1 16 3 plans[Fight]"},
      // Into smoke, yes; out of it, no.
      {"Vesper 2,2 20 4 | Tony 3,2 16 3 | Al 2,2 9 3",
       "[Smoke][Smoke]",
       {},
       "  Tony moves to B, 2 and engages Vesper in a fight.  The thick smoke makes it hard to see.",
       "Vesper 2,2 20 4 | Tony 2,2 16 3 plans[Fight] | Al 2,2 9 3 plans[Fight]"},
      {"Vesper 4,2 20 4 | Tony 2,2 16 3",
       "[Smoke][Smoke]",
       {},
       "",
       "Vesper 4,2 20 4 | Tony 2,2 16 3"},
      // A daze holds an enemy where it is, and is all that is told of it.
      {"Vesper 4,1 20 4 | Tony 1,1 16 3 [Dazed]",
       "",
       {},
       "  Tony shakes off some dizziness and gets to his feet.",
       "Vesper 4,1 20 4 | Tony 1,1 16 3"},
      // Without its target it turns to the next hero, at the cost of a coin for each.
      {"Vesper 4,1 0 4 | Nora 1,3 20 4 | Bly 4,3 20 4 | Tony 1,1 16 3",
       "",
       {{2, 1}, {2, 1}},
       "  Tony moves to A, 2.",
       "Vesper 4,1 0 4 | Nora 1,3 20 4 | Bly 4,3 20 4 | Tony 1,2 16 3 t2"},
  });
}

TEST(EndOfTurn, ConditionsWearOffTurnByTurn) {
  Player player;
  Game& game = player.game();
  arrange(game, "Vesper 2,2 20 4 [Dazed][Netted][Netted][Pinned][Dazed][Pinned]");
  const std::vector<std::string> turns{
      "  Vesper lies dazed on the floor.  Vesper struggles to free herself from the net.",
      "  Vesper shakes off some dizziness and gets to her feet.  Vesper finally gets free of the "
      "net and tosses it aside.",
      "  Vesper struggles to pull out the knife that has her pinned.",
      "  Vesper finally yanks out the knife that had her pinned.", ""};
  for (int turn = 1; turn <= 5; ++turn) {
    endturn(game);
    EXPECT_EQ(game.turnsummary, "  -End of turn number " + std::to_string(turn) + "." +
                                    turns[static_cast<std::size_t>(turn - 1)]);
  }
}

// An enemy that arrives on Nora's and Vesper's tile at the end of turn 1.
std::string arrivalof(int type, int engaged) {
  Player player;
  Game& game = player.game();
  arrange(game, "Vesper 2,2 20 4 moved | Nora 2,2 20 4 | Tony 2,2 16 0 plans[Fight]");
  Mob& tony = game.mob(3);
  tony.health = 0;
  tony.mobtype = type;
  tony.spawntime = 1;
  tony.spawntext = "$N, yes $N, comes in.  ";
  if (engaged == 1) arrange(game, "Al 2,2 99 1 plans[Fight]");
  endturn(game);
  EXPECT_EQ(game.mob(3).health, 16);
  return game.list1.front();
}

TEST(EndOfTurn, NewcomersAreAnnounced) {
  const std::string comes = "Tony, yes Tony, comes in.   Location B, 2";
  EXPECT_EQ(arrivalof(mobtype::ordinary, 0), comes + " and engaged Nora in a fight.");
  EXPECT_EQ(arrivalof(mobtype::ordinary, 1), comes + ".");
  EXPECT_EQ(arrivalof(mobtype::gunman, 0), comes + ".");
}

TEST(EndOfTurn, TheFirstConsciousHeroGoesOnWithAFreshTurn) {
  Player player;
  Game& game = player.game();
  arrange(game, "Vesper 1,1 0 4 | Nora 2,2 20 4 | Bly 1,1 20 4 | Tony 4,3 9 1 [Netted][Netted]");
  game.selected = 3;
  game.mob(2).hasmoved = game.mob(2).hasacted = 1;
  game.summarylabel.lines = {"-Mission 1 begins: "};
  game.list1 = {"earlier"};
  const auto events = player.during([&] { endturn(game); });
  EXPECT_EQ(game.list2, std::vector<std::string>{"Move"});
  EXPECT_EQ(game.selected, 2);
  EXPECT_EQ(game.mob(2).hasacted, 0);
  EXPECT_EQ(game.list1, (std::deque<std::string>{"Tony struggles to free himself from the net.",
                                                 "-End of turn number 1."}));
  ASSERT_GE(events.size(), 2U);
  EXPECT_EQ(events[events.size() - 2],
            "show\tsummary\tTony struggles to free himself from the net.\\r\\n"
            "-End of turn number 1.\\r\\n-Mission 1 begins: ");
  EXPECT_EQ(events.back(), "focus\tsummary");
}

}  // namespace
}  // namespace duskmarch
