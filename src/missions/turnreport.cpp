#include "missions/turnreport.h"

#include <algorithm>
#include <iterator>

#include "missions/missionlist.h"
#include "world/narration.h"
#include "world/personwords.h"
#include "world/whostands.h"

namespace duskmarch {

namespace {

std::string mission(const Game& game) {
  if (game.missionnumber == 0) return "the test mission";
  return "mission " + std::to_string(game.missionnumber);
}

int countstanding(const Game& game, int side) {
  const auto people = standing(game, side);
  return static_cast<int>(std::distance(people.begin(), people.end()));
}

std::string enemies(int count) {
  return std::to_string(count) + (count == 1 ? " enemy" : " enemies");
}

std::string heroes(int count) {
  return std::to_string(count) + (count == 1 ? " hero" : " heroes");
}

}  // namespace

std::string turnwords(const Game& game) {
  const bool more = std::ranges::any_of(everyone(game), [&](const Mob& mob) {
    return mob.aliance == aliance::enemies && tocome(game, mob);
  });
  // A mission that was never written has no objective of its own.
  const bool written = findmission(game.missionnumber) != nullptr;
  return sentence({"Turn ", std::to_string(game.turnnumber + 1), " of ", mission(game), ".  ",
                   written ? game.objective : "", written ? "  " : "",
                   heroes(countstanding(game, aliance::heroes)), " and ",
                   enemies(countstanding(game, aliance::enemies)), " standing.  ",
                   more ? "More are still to come." : "Nobody is still to come."});
}

}  // namespace duskmarch
