// Speech output: one procedure through which everything is said, the engines, and the history.
#pragma once

#include <array>
#include <string_view>

#include "game.h"
#include "shell/speech/keycodes.h"

namespace duskmarch {

// What mode 2 presses to have the title read.
inline constexpr std::array readingkeys = {key::ctrl, key::shift, key::t};

// Speaks one text by the engine of the current mode, keeps it in the history and paints it for
// onlookers. An empty text cuts off the game's own voice.
void sayit(Game& game, std::string_view text);

// Create the engines at start-up; `sapiready` and `jawsready` tell the outcome.
void setupsapi(Game& game);
void loadjaws(Game& game);

// Steps through what was said; `keycode` is one of the review keys.
void reviewhistory(Game& game, KeyPress key);

// Sets the window title.
void settitle(Game& game, std::string_view title);
// Tells the voice its rate, if there is a voice.
void giverate(Game& game);

}  // namespace duskmarch
