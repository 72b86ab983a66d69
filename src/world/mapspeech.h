// The map in words.
#pragma once

#include <string>

#include "audio/cuetable.h"
#include "game.h"
#include "values/hundredths.h"
#include "world/directions.h"

namespace duskmarch {

// The column letter, "A" for 1 to "Z" for 26; empty for any other number.
std::string saycoords(int column);
// "C, 2": how narration names a place.
std::string location(int x, int y);
// "C 2": how the map names it.
std::string placename(Tile tile);
// Speaks what is on a tile.
void saytile(Game& game, int x, int y);
// The soft tone of a tile: for people before smoke before furniture.
cue::Id toneof(const Game& game, int x, int y);
// Speak everyone of a side, or all furniture, with their places.
void rollcallofheroes(Game& game);
void rollcallofenemies(Game& game);
void rollcalloffurniture(Game& game);
// By how much mob `z`'s fighting skill is raised or lowered on its tile right now.
Hundredths calcfight2(const Game& game, int z);

}  // namespace duskmarch
