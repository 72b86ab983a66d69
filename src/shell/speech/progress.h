// progress.ini: the speech settings, kept from run to run.
#pragma once

#include "game.h"

namespace duskmarch {

// Rewrites the file from `speechmode`, `sapirate` and `progressspare`; whether that could be done.
// When it could not, what was there is there still.
bool saveprogress(const Game& game);
// Takes over what the file holds, and gives the voice its rate; what is missing or makes no sense
// keeps its start value.
void readprogress(Game& game);

}  // namespace duskmarch
