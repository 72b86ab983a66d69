// What must hold after every key, whatever was pressed and whatever a saved game held.
#pragma once

#include <string>

#include "game.h"

namespace duskmarch {

// Describes the first broken invariant; empty when all hold.
std::string brokeninvariant(const Game& game);

}  // namespace duskmarch
