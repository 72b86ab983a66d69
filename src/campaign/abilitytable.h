// The abilities that vigilantes can learn: what they cost and what they do, in words.
#pragma once

#include <span>
#include <string_view>

#include "game.h"

namespace duskmarch {

struct AbilityRow {
  std::string_view name;
  int firstprice = 0;   // of learning it
  int secondprice = 0;  // of one more use in each mission
  std::string_view description;
};

inline constexpr int abilityrows = 15;

// In the order of the upgrade menu.
std::span<const AbilityRow, abilityrows> abilitytable();

// Gives a hero one use of an ability, and what belongs to it: whoever can blast carries a gun.
void learn(Game& game, int hero, std::string_view ability);

}  // namespace duskmarch
