// What a mob plans for this end of turn, in plain words.
#pragma once

#include <string>

#include "game.h"

namespace duskmarch {

// The whole plan, such as "will shoot at B 5" or "plans to throw Kestrel to the west"; empty for
// none.
std::string planwords(const Game& game, const Mob& mob);

}  // namespace duskmarch
