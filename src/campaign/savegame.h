// The saved campaign.
#pragma once

#include <string_view>

#include "game.h"

namespace duskmarch {

// Writes the campaign to a file in the program folder; an earlier one survives with ".bak" added.
// A failure is spoken.
void savegame(Game& game, std::string_view name);
// Reads it back and goes to the hideout. A file that is missing, or damaged, is spoken of; the
// values read before the damage are kept.
void loadgame(Game& game, std::string_view name);

}  // namespace duskmarch
