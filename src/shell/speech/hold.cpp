#include "shell/speech/hold.h"

#include <chrono>
#include <cmath>

#include "shell/speech/keyqueue.h"

namespace duskmarch {

void hold(Game& game, double seconds) {
  const std::chrono::milliseconds interval(std::lround(std::nearbyint(seconds * 1000)));
  if (interval < std::chrono::milliseconds(1)) return;
  letkeysthrough(game, [&] { game.desktop.window.wait(interval); });
}

}  // namespace duskmarch
