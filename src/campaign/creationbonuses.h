// The bonuses that a new vigilante chooses from.
#pragma once

#include <array>
#include <cstddef>
#include <string_view>

#include "heroturn/ordertable.h"

namespace duskmarch {

inline constexpr int bonuschoices = 3;

struct Bonus {
  std::string_view name;
  std::string_view description;
  std::array<AbilityName, 2> abilities;  // one use of each
};

struct BonusGroup {
  std::string_view title;
  std::array<Bonus, bonuschoices> choices;
};

enum class Bonuses : std::size_t { first, second, third };

const BonusGroup& bonusgroup(Bonuses which);

}  // namespace duskmarch
