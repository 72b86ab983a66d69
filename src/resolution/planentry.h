// The entries that gifted enemies plan by, such as "[Throw chair North]", taken apart.
#pragma once

#include <string_view>

#include "game.h"
#include "world/directions.h"

namespace duskmarch {

// What the entries ask for: names in the table of orders.
namespace plannedoption {
inline constexpr std::string_view kick = "Kick";
inline constexpr std::string_view throwchair = "Throw chair";
inline constexpr std::string_view throwtable = "Throw table";
inline constexpr std::string_view throwperson = "Throw";  // and the name of whom
}  // namespace plannedoption

// Without a direction, an entry asks for nothing.
struct PlanEntry {
  std::string_view option;
  const Direction* direction = nullptr;
};
PlanEntry readentry(std::string_view entry);

// The name in an option such as "Throw Vesper"; empty for one of another kind.
std::string_view nameofthrown(std::string_view option);
// The slot of the hero on the thrower's own tile whom such an option would throw, the last of
// several; 0 for another option or when there is none.
int thrownby(const Game& game, const Mob& thrower, std::string_view option);

}  // namespace duskmarch
