// Every key press, whatever it means.
#pragma once

#include "game.h"

namespace duskmarch {

// Called by the front end for each key press in the window and in its pages. The key goes to the
// page that has the focus, else to the window. A key that arrives while another one's handler is
// at work waits until that handler is done; hold() alone lets keys through.
void keypress(Game& game, KeyPress key);
// Handles the keys that are waiting, in order of arrival. Called by the front end when it begins to
// wait for the game.
void handlewaitingkeys(Game& game);

}  // namespace duskmarch
