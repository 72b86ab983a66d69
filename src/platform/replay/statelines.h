// The whole state of a game as transcript lines, for tests and bug reports.
#pragma once

#include "game.h"
#include "platform/replay/transcript.h"

namespace duskmarch {

void writestate(const Game& game, Transcript& transcript);

}  // namespace duskmarch
