// progress.ini: the speech settings, kept from run to run.
#pragma once

#include "game.h"

namespace duskmarch {

// Rewrites the file from `speechmode`, `sapirate` and `progressspare`. That this fails is told
// once, with what is said next.
void saveprogress(Game& game);
// Takes over what the file holds, and gives the voice its rate; what is missing or makes no sense
// keeps its start value.
void readprogress(Game& game);

}  // namespace duskmarch
