// The map as onlookers see it.
#pragma once

#include "game.h"

namespace duskmarch {

// Paints the map over everything below the spoken line; no rule reads what is drawn.
void drawscreen(Game& game);

}  // namespace duskmarch
