// Key presses in order: one that arrives while another's handler is at work waits for it, so that
// no turn is ever ended inside another.
#pragma once

#include "game.h"

namespace duskmarch {

// Handles the key now, or when the handler at work is done.
void arrive(Game& game, KeyPress key);
// Lets `wait` work on with keys handled as they arrive, those that are waiting first.
template <typename Wait>
void letkeysthrough(Game& game, Wait wait);

// Handles the keys that are waiting.
void handlewaitingkeys(Game& game);

template <typename Wait>
void letkeysthrough(Game& game, Wait wait) {
  const bool busy = game.keyhandlerbusy;
  game.keyhandlerbusy = false;
  handlewaitingkeys(game);
  wait();
  game.keyhandlerbusy = busy;
}

}  // namespace duskmarch
