// What the enemies' plans threaten at this end of turn, as far as they can be known.
#pragma once

#include <string>

#include "game.h"

namespace duskmarch {

// Each tile that a gun, a kick or a throw will hit, by whom, and which heroes stand there, those
// with heroes first; then the shots that smoke, a table or a shield stops. Planners with any
// condition do nothing, and are left out; so are throws of what is no longer there, and fights.
std::string dangerwords(const Game& game);

}  // namespace duskmarch
