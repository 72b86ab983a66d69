// What a mob may do now, as lines of text that are both heard and performed.
#pragma once

#include <string_view>

#include "game.h"

namespace duskmarch {

// Fills the option list with what mob `w` (0: the selected hero) may do. While `listingfor` names
// an enemy, the enemy's own list is filled instead.
void listoptions(Game& game, int w);
// Puts one option in the list of whoever is being listed.
void list2additem(Game& game, std::string_view option);

}  // namespace duskmarch
