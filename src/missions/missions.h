// The frame that every mission shares.
#pragma once

#include "game.h"

namespace duskmarch {

// Starts mission `missionnumber`; a number without a mission starts nothing but the turn count.
void startusout(Game& game);
// Decides victory and defeat; called each time the turn summary is closed during a mission.
void endcheck(Game& game);
// The keys of the story page.
void storylabel_keydown(Game& game, KeyPress key);

}  // namespace duskmarch
