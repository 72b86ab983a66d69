// The main window: start-up and repaint.
#pragma once

#include "game.h"

namespace duskmarch {

// From launch to the spoken main menu; called once, before the window is first shown. Without a
// sound device, or beside another game with the same files, it shows a message and ends the
// program.
void startup(Game& game);
// The surface must be redrawn.
void repaint(Game& game);

// The front end has found a screen reader: at a first start the player is told how to hear the game
// through it, after what is being said.
void readerfound(Game& game);

}  // namespace duskmarch
