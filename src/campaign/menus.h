// The spoken menus.
#pragma once

#include "game.h"

namespace duskmarch {

// Whether the list starts over at its ends, stops there, or has none.
enum class Ends { wrap, stop, open };

// Moves `menupos` among `entries` entries by an arrow key; other keys only bring it into range.
void cycleme(Game& game, int keycode, int entries, Ends ends);

// Handles a menu key on the screen that `menuname` names: arrows move and speak, Enter performs,
// anything else speaks the entry again.
void menus(Game& game, KeyPress key);

// Goes to the first or the last entry and speaks it, with the sound of the arrows.
void gotoend(Game& game, bool last);
// Speaks the entry that was reached last; the menu's name where none was.
void sayentry(Game& game);

}  // namespace duskmarch
