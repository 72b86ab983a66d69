// Which hero comes after the selected one.
#pragma once

#include "game.h"

namespace duskmarch {

// The first conscious hero in the slots `first` to `last`; 0 when there is none.
int firsthero(const Game& game, int first, int last);
// The next conscious hero after the selected one, starting over at slot 1; 0 when there is none.
int nexthero(const Game& game);

}  // namespace duskmarch
