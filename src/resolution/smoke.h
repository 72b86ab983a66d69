// Smoke on the map, as the end of turn meets it.
#pragma once

#include "game.h"

namespace duskmarch {

bool insmoke(const Game& game, const Mob& mob);

// Thins the smoke of every tile; told when some tile is rid of it.
void thinsmoke(Game& game);

}  // namespace duskmarch
