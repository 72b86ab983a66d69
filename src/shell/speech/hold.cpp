#include "shell/speech/hold.h"

#include <chrono>
#include <cmath>
#include <utility>

namespace duskmarch {

void hold(Game& game, double seconds) {
  const std::chrono::milliseconds interval(std::lround(std::nearbyint(seconds * 1000)));
  if (interval < std::chrono::milliseconds(1)) return;
  const bool busy = std::exchange(game.keyhandlerbusy, false);
  game.desktop.window.wait(interval);
  game.keyhandlerbusy = busy;
}

}  // namespace duskmarch
