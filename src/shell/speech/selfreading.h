// Pages and dialogs read by the game's own voice, for players without a screen reader. Nothing
// here enters the speech history.
#pragma once

#include <string_view>

#include "game.h"

namespace duskmarch {

// Says `text` after what is being said, if no screen reader would read it.
void readaloud(Game& game, std::string_view text);
// The caret of a page moved by an arrow key: `text` is the line (or the character) it came to.
void caretmoved(Game& game, std::string_view text);
// The player typed `text` into an input box.
void echotyped(Game& game, std::string_view text);

}  // namespace duskmarch
