// comfort.ini: what the player likes, kept from run to run beside the speech settings.
#pragma once

#include "game.h"

namespace duskmarch {

// Takes over what the file holds; what is missing or makes no sense keeps its start value. A voice
// that is gone is told of with the next text.
void readcomfort(Game& game);
// Rewrites the file. That this fails is told once, with what is said next.
void keepcomfort(Game& game);

// Descriptions off or on again, said and kept.
void toggledescriptions(Game& game);
// The own voice's next (1) or previous (-1) voice, which says its name, and is kept.
void changevoice(Game& game, int step);

}  // namespace duskmarch
