// comfort.ini: what the player likes, kept from run to run beside the speech settings.
#pragma once

#include "game.h"

namespace duskmarch {

inline constexpr int loudest = 10;  // of cues and ambience; 0 is off

// Takes over what the file holds; what is missing or makes no sense keeps its start value. A voice
// that is gone is told of with the next text.
void readcomfort(Game& game);
// Rewrites the file. That this fails is told once, with what is said next.
void keepcomfort(Game& game);

// Descriptions off or on again, said and kept.
void toggledescriptions(Game& game);
// Cues or ambience louder (1) or quieter (-1): the number is said, with an example, and kept.
void changecuevolume(Game& game, int step);
void changeambiencevolume(Game& game, int step);
// The own voice's next (1) or previous (-1) voice, which says its name, and is kept.
void changevoice(Game& game, int step);

}  // namespace duskmarch
