// The wait primitive.
#pragma once

#include "game.h"

namespace duskmarch {

// Waits while the window works on: keys pressed meanwhile are handled inside the wait. Less than
// half a millisecond returns at once.
void hold(Game& game, double seconds);

}  // namespace duskmarch
