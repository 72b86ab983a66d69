// Performing the selected hero's options.
#pragma once

#include <string>

#include "game.h"

namespace duskmarch {

// Performs one line of the option list for the selected hero. Where a direction is needed the
// player is asked for it. A line that names no option performs nothing.
void dooption(Game& game, std::string option);

}  // namespace duskmarch
