// The end of turn, phase by phase, as a player hears it.
#include "resolution/endturn.h"

#include "cases.h"
#include "draws.h"
#include "ground.h"
#include "harness.h"

namespace duskmarch {
namespace {

// "7=1 3=0 [Smoke]": the draws that there will be, and the tags of tile 2,2.
std::vector<Draw> arrangechance(Game& game, const std::string& what) {
  std::vector<Draw> draws;
  std::istringstream words(what);
  for (std::string word; words >> word;) {
    if (word.starts_with('[')) {
      game.tilefx[2][2] = word;
    } else if (word.size() == 3 && word[1] == '=') {
      draws.push_back({word[0] - '0', word[2] - '0'});
    } else {
      throw std::invalid_argument("no draw and no tag: " + word);
    }
  }
  willdraw(game, draws);
  return draws;
}

TEST(EndOfTurn, EveryPhaseActsAndTells) {
  for (const Case& c : readcases("endturn.txt")) {
    SCOPED_TRACE(c.place);
    Player player;
    Game& game = player.game();
    arrange(game, c.before);
    for (int slot = 1; slot <= game.mobcount; ++slot) {
      Mob& mob = game.mob(slot);
      if (mob.mobtype == mobtype::gunman) mob.gun = 6;
      if (mob.mobtype == mobtype::hero && mob.action == "[Fight]") mob.target = game.mobcount;
    }
    const auto draws = arrangechance(game, c.what);
    const auto random = game.random;
    const auto spoken = player.spoken([&] { endturn(game); });
    const std::string told = c.told.empty() ? "" : "  " + c.told;
    EXPECT_EQ(spoken, std::vector{"  -End of turn number 1." + told}) << c.before;
    EXPECT_EQ(described(game), c.after) << c.before;
    EXPECT_EQ(drawssince(game, random), static_cast<int>(draws.size())) << c.before;
  }
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

}  // namespace
}  // namespace duskmarch
