// The game's one source of chance.
#pragma once

#include <cstdint>

#include "game.h"

namespace duskmarch {

inline void seed(Game& game, std::uint32_t number) {
  game.random.seed(number);
}

// Int(Rnd * n): uniform over 0 to n - 1.
inline int draw(Game& game, int n) {
  return static_cast<int>((std::uint64_t{game.random()} * static_cast<std::uint64_t>(n)) >> 32);
}

}  // namespace duskmarch
