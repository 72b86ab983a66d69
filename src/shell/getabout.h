// Getting about on the map in fewer presses.
#pragma once

#include <string_view>

#include "game.h"

namespace duskmarch {

// What a key answers that has no mission to speak of, or nobody.
inline constexpr std::string_view nomission = "No mission is under way.";
inline constexpr std::string_view nobodychosen = "Choose a vigilante first.";

// The map cursor to the next (or previous) tile with enemies that is not its own, by the slot of
// its first enemy, whatever takes the keys.
void gotoenemies(Game& game, bool backwards);
// The map cursor back to the selected hero.
void gotohero(Game& game);
// The selected hero moves to the cursor's tile, as by the order "Move"; where it may not, the
// reason is said.
void movetocursor(Game& game);

}  // namespace duskmarch
