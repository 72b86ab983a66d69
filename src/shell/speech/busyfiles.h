// Files of the game that another program has open when they are to be written, as programs that
// look for viruses or keep copies elsewhere have for a moment: nothing waits for them but the file.
#pragma once

#include <string>
#include <string_view>

#include "game.h"

namespace duskmarch {

enum class Keeping { done, waiting, failed };

// Writes a file and calls its kind's `written`. Where another program has it open, or one that has
// to be renamed for it, that is left to trybusyfilesagain(); where it is waiting already, the newer
// text takes the older one's place.
Keeping keepfile(Game& game, OwnFile file);
// Tries again what another program has kept from being written, each for half a second, after
// which the player is told; whether anything is left to try. The front end of a system that has
// FileBusy calls it every few hundredths of a second while there are `busyfiles`, and at the end of
// the program until it is done.
bool trybusyfilesagain(Game& game);
// The text that a file has as soon as it can be written; nothing if it is not waiting for that.
const std::string* waitingtext(const Game& game, std::string_view name);

}  // namespace duskmarch
