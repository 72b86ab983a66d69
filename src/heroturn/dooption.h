// Carrying out the selected hero's orders.
#pragma once

#include <string_view>

#include "game.h"
#include "world/directions.h"

namespace duskmarch {

// Carries out one line of the option list, which may stand in the list itself, for the selected
// hero. Where a direction is needed the player is asked for it. A line that names no order does
// nothing but what follows every order.
void dooption(Game& game, std::string_view option);
// The same with the direction known, so that nobody is asked.
void dooption(Game& game, std::string_view option, const Direction& direction);

}  // namespace duskmarch
