// The two text pages and the dialogs, as every rule uses them: the desktop shows them, the keyboard
// knows where the focus is, and a player without a screen reader hears them.
#pragma once

#include <string>
#include <string_view>

#include "game.h"

namespace duskmarch {

void showsummary(Game& game);
void focussummary(Game& game);
// Focuses the summary, whose first line is also read to a player without a screen reader.
void readsummary(Game& game);
void hidesummary(Game& game);

void showstory(Game& game);
// Also reads the whole page to a player without a screen reader.
void focusstory(Game& game);
void hidestory(Game& game);

// Under the name that a screen reader calls it by.
void showhelp(Game& game, std::string_view name);
// Also reads the whole page to a player without a screen reader.
void focushelp(Game& game);
void hidehelp(Game& game);

// What the player typed; empty when the box was cancelled. Mode 0 speaks the
// prompt first.
std::string inputbox(Game& game, std::string_view title, std::string_view prompt);
// The same for a direction, which an arrow key answers as well.
std::string directionbox(Game& game, std::string_view title, std::string_view prompt,
                         const ArrowAnswers& arrows);
void messagebox(Game& game, std::string_view title, std::string_view text);

}  // namespace duskmarch
