// The end of turn.
#pragma once

#include "game.h"

namespace duskmarch {

// Carries out every planned action of every mob, speaks the turn's narration and shows its
// summary.
void endturn(Game& game);

}  // namespace duskmarch
