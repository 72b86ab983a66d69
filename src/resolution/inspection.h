// A hero, and a tile with everything on it, in plain words.
#pragma once

#include <string>

#include "game.h"
#include "world/directions.h"

namespace duskmarch {

// Place, body, conditions, what it fights and may still do, and its abilities; what is as usual is
// left out.
std::string herowords(const Game& game, int slot);
// Everyone on the tile, with the plans of each, and everything.
std::string tilewords(const Game& game, Tile tile);

}  // namespace duskmarch
