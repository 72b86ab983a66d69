// The saved campaign.
#pragma once

#include <string_view>

#include "game.h"

namespace duskmarch {

// Writes the campaign to a file in the program folder. An earlier one survives, with ".bak" added
// if it is whole and ".damaged" if not. The file is on the disk before its sound is heard; a
// failure is spoken.
void savegame(Game& game, std::string_view name);
// Reads it back and goes to the hideout. A file that is missing, or damaged, is spoken of; the
// values read before the damage are kept.
void loadgame(Game& game, std::string_view name);

}  // namespace duskmarch
