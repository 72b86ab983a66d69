// The keys that change how the game speaks.
#pragma once

#include "game.h"

namespace duskmarch {

// The next speech engine, announced by its sound, and saved.
void switchengine(Game& game);
// A faster (+1) or slower (-1) voice, announced and saved.
void changerate(Game& game, int step);

}  // namespace duskmarch
