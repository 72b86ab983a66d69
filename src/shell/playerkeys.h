// The keys of the window, a row each, and those beyond the rules carried out.
#pragma once

#include <span>

#include "game.h"
#include "shell/keyrow.h"

namespace duskmarch {

// In the order in which the help tells of them.
std::span<const PlayerKey> playerkeys();

// Does what a key beyond the rules is for; false when it is none here. With Ctrl and Alt such keys
// are the system's.
bool playerkey(Game& game, KeyPress press);

}  // namespace duskmarch
