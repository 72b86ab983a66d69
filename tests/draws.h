// Chance made to order.
#pragma once

#include <algorithm>
#include <vector>

#include "world/chance.h"

namespace duskmarch {

struct Draw {
  int n = 0;
  int gives = 0;
};

// Seeds the game so that its next draws come out as told.
inline void willdraw(Game& game, const std::vector<Draw>& draws) {
  std::uint32_t number = 0;
  const auto fails = [&](const Draw& expected) { return draw(game, expected.n) != expected.gives; };
  do {
    seed(game, ++number);
  } while (std::ranges::any_of(draws, fails));
  seed(game, number);
}

// How many draws were made since willdraw() or seed() was called, up to a few dozen.
inline int drawssince(const Game& game, std::mt19937 before) {
  int count = 0;
  for (; before != game.random && count < 99; ++count) before();
  return count;
}

}  // namespace duskmarch
