// Speech output: one procedure through which everything is said, and the history. What the engines
// do stands in shell/speech/speechengines.h.
#pragma once

#include <string_view>

#include "game.h"

namespace duskmarch {

// Speaks one text by the engine of the current mode, keeps it in the history and paints it for
// onlookers. An empty text cuts off the game's own voice.
void sayit(Game& game, std::string_view text);
// A sentence that the game adds on its own: it is said and kept together with the next text, after
// two spaces. It waits for a story page to be closed, and for a look at the history to end.
void addsentence(Game& game, std::string_view sentence);
// Says by itself what was added, where no text follows; a story page puts that off as well.
void sayadded(Game& game);

// Create the engines at start-up; `sapiready` and `jawsready` tell the outcome.
void setupsapi(Game& game);
void loadjaws(Game& game);

// Steps through what was said; `keycode` is one of the review keys.
void reviewhistory(Game& game, KeyPress key);

// Tells the voice its rate, if there is a voice.
void giverate(Game& game);

}  // namespace duskmarch
