#include <array>
#include <cstddef>
#include <string_view>
#include <utility>

#include "campaign/screens.h"
#include "missions/missions.h"
#include "shell/speech/hold.h"
#include "shell/speech/speech.h"

namespace duskmarch {
namespace {

void newgame(Game& game) {
  sayit(game, "Welcome to your hideout.");
  enterscreen(game, screen::hideout);
}

void testmission(Game& game) {
  enterscreen(game, screen::map);
  game.missionnumber = 0;
  game.waybackkept = false;
  startusout(game);
}

void about(Game& game) {
  sayit(game,
        "I'm just testing to see if players are able to make sense of this game's mechanics and "
        "controls.  I've enjoyed playing it, but I've been relying on visual input and don't know "
        "how well it will translate into audio.  The readme.txt file should have the controls for "
        "how to play.");
}

void exitgame(Game& game) {
  if (std::exchange(game.leaving, true)) return;  // Enter came again during the wait
  sayit(game, "Good bye.");
  hold(game, 1);
  if (game.ended) return;  // the window was closed during the wait
  game.ended = true;
  game.desktop.system.end();
}

struct Entry {
  std::string_view spoken;
  void (*perform)(Game& game);
};

constexpr std::array<Entry, mainmenuentries> entries = {{
    {"Start new game", newgame},
    {"Test mission where you control 2 established heroes against many foes.", testmission},
    {"About", about},
    {"Exit the game", exitgame},
}};

const Entry& currententry(const Game& game) {
  return entries[static_cast<std::size_t>(game.menupos - 1)];
}

}  // namespace

void speakmainmenu(Game& game) {
  sayit(game, currententry(game).spoken);
}

void performmainmenu(Game& game, int /*shift*/) {
  currententry(game).perform(game);
}

}  // namespace duskmarch
