// How speech survives its engines.
#pragma once

#include <exception>

#include "debuglog.h"
#include "game.h"

namespace duskmarch {

// Runs one step of speaking; what goes wrong in it is logged, and costs that step alone.
template <typename Step>
void guarded(const Game& game, Step step) {
  try {
    step();
  } catch (const std::exception& error) {
    logerror(game, "sayit", error.what());
  }
}

}  // namespace duskmarch
