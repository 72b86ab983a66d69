// The last spoken text in large letters, for onlookers.
#pragma once

#include <string_view>

#include "game.h"

namespace duskmarch {

// Shows `text` in place of the one before. One too long for its place above the map covers the map
// as far as it needs.
void paintspokenline(Game& game, std::string_view text);
// The next key has come: the map is seen whole again.
void uncovermap(Game& game);
// Paints once more what is to be seen now, for a window of another size.
void repaintspokenline(Game& game);

}  // namespace duskmarch
