// Learning an ability, by a bonus or for upgrade points.
#pragma once

#include <string_view>

#include "game.h"

namespace duskmarch {

// Gives a hero one use of an ability, and what belongs to it: whoever can blast carries a gun.
void learn(Game& game, int hero, std::string_view ability);

}  // namespace duskmarch
