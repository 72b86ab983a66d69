// The saved campaign.
#pragma once

#include <string_view>

#include "game.h"

namespace duskmarch {

// Writes the campaign to a file in the folder of the game's files. An earlier one survives, with
// ".bak" added if it is whole and ".damaged" if not. The file is on the disk before its sound is
// heard; a failure is spoken.
void savegame(Game& game, std::string_view name);
inline constexpr std::string_view autosavefile = "autosave.sav";
// Keeps the campaign in `autosavefile` with the same care, but without sound or words; that it
// cannot be kept is told once, with what is said next. Whether it is kept: never while the test
// mission's heroes stand in the places of the campaign's.
bool keepprogress(Game& game);
// The same for what was chosen in the hideout; but what was kept before a campaign mission that is
// not won stays.
void keepchoices(Game& game);
// Reads it back and goes to the hideout. A file that is missing, or damaged, is spoken of; the
// values read before the damage are kept.
void loadgame(Game& game, std::string_view name);

}  // namespace duskmarch
