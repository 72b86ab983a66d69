// The option list: what a mob may do now, as lines of text that are both heard and performed.
#pragma once

#include <string_view>

#include "game.h"

namespace duskmarch {

// Fills the option list with what mob `w` (0: the selected hero) may do.
void listoptions(Game& game, int w);
// Puts one option at the end of the list.
void list2additem(Game& game, std::string_view option);

}  // namespace duskmarch
