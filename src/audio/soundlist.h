// The page by which one learns the sounds: the name and the meaning of each on a line.
#pragma once

#include <string>
#include <string_view>

#include "game.h"

namespace duskmarch {

// All lines, cues before loops, parted by CR LF.
std::string soundlist();
// The caret of an open page of sounds has come to `text`, the line or a part of it.
void tosoundline(Game& game, std::string_view text);
// Plays the sound of the line that one is on; a loop until the page is closed.
void playsoundline(Game& game);

}  // namespace duskmarch
