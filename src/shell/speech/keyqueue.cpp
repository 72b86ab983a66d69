#include "shell/speech/keyqueue.h"

#include <exception>

#include "debuglog.h"

namespace duskmarch {

namespace {

// Whatever goes wrong in a key's handler costs the rest of what that key would have done.
void handle(Game& game, KeyPress key) {
  try {
    game.handlekey(game, key);
  } catch (const std::exception& error) {
    logerror(game, "keypress", error.what());
  }
}

}  // namespace

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
    handle(game, key);
  }
  game.keyhandlerbusy = false;
}

}  // namespace duskmarch
