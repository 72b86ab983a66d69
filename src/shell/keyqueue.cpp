#include "shell/keyqueue.h"

namespace duskmarch {

void arrive(Game& game, KeyPress key) {
  game.waitingkeys.push_back(key);
  if (!game.keyhandlerbusy) handlewaitingkeys(game);
}

void handlewaitingkeys(Game& game) {
  game.keyhandlerbusy = true;
  while (!game.waitingkeys.empty() && !game.ended) {
    const KeyPress key = game.waitingkeys.front();
    game.waitingkeys.pop_front();
    game.trace.key(key.keycode, key.shift);
    game.handlekey(game, key);
  }
  game.keyhandlerbusy = false;
}

}  // namespace duskmarch
