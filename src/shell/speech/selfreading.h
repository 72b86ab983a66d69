// Pages, boxes and what is typed, read by the engine that speaks: for players without a screen
// reader, in the modes whose engine is a voice. Nothing here enters the speech history.
#pragma once

#include <string_view>

#include "game.h"

namespace duskmarch {

// Says `text` after what is being said, if no screen reader would read it.
void readaloud(Game& game, std::string_view text);
// The page that has got the focus is read: `text`, which R says again. An empty one is said too.
void readpage(Game& game, std::string_view text);
// Says again what was last read of the page that has the focus.
void readpageagain(Game& game);
// Cuts off what is read of a page that is closed.
void stopreading(Game& game);

// A key moved the caret of a page, or could not: `text` is the line (or the character) where it is.
void caretmoved(Game& game, std::string_view text);
// The player typed `text` into a box, or came to it there; an empty one is an empty line.
void echotyped(Game& game, std::string_view text);
// The player pressed a key in a box, where no handler of the game sees it; comes before what the
// key brings about. Speech falls silent as it does for a key in the window.
void boxkey(Game& game, int keycode);

}  // namespace duskmarch
