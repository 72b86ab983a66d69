// What M and V tell of an enemy: its state and what it is about to do.
#pragma once

#include "game.h"

namespace duskmarch {

// Speaks the state and the plans of the next conscious enemy on the cursor's tile.
void mobcheck(Game& game);
// Speaks a plain description of the next conscious enemy on the cursor's tile, its action as it is
// stored.
void describeenemy(Game& game);

}  // namespace duskmarch
