// How far the mission is, in words.
#pragma once

#include <string>

#include "game.h"

namespace duskmarch {

// The turn, what the mission is about, how many stand, and whether more are to come (never when or
// where).
std::string turnwords(const Game& game);

}  // namespace duskmarch
