#include "shell/speech/speechsettings.h"

#include <algorithm>
#include <string>

#include "audio/sounds.h"
#include "shell/speech/progress.h"
#include "shell/speech/speech.h"

namespace duskmarch {

namespace {

std::string restingtitle(const Game& game) {
  return "Quorvane's Duskmarch (v" + game.version + ")";
}

// Keeps the settings from run to run; returns what the player is told of it, once, when that fails.
std::string_view keepsettings(Game& game) {
  if (saveprogress(game) || game.writefailuretold) return {};
  game.writefailuretold = true;
  return "Your speech settings cannot be saved.  The game goes on without saving.";
}

// The words that go with the choice of an engine, if any; the others tell by their sound.
std::string_view choosejaws(Game& game) {
  settitle(game, restingtitle(game));
  if (game.jawsready == 1) {
    playeffect(game, "/sounds/Menu/JAWS.wav");
    return {};
  }
  game.speechmode = 0;
  return "Jaws does not seem to be responding, Sapi on.";
}

}  // namespace

void switchengine(Game& game) {
  if (game.speechmode == 0 && game.sapiready == 1) game.sapivoice->hush();
  game.speechmode = (game.speechmode + 1) % 4;
  std::string_view words;
  switch (game.speechmode) {
    case 0:
      settitle(game, restingtitle(game));
      playeffect(game, "/sounds/Menu/SAPI.wav");
      break;
    case 1: playeffect(game, "/sounds/Menu/NVDA.wav"); break;
    case 2: playeffect(game, "/sounds/Menu/WE.wav"); break;
    default: words = choosejaws(game);
  }
  if (!words.empty()) sayit(game, words);
  if (const std::string_view failure = keepsettings(game); !failure.empty()) sayit(game, failure);
}

void changerate(Game& game, int step) {
  game.sapirate = std::clamp(game.sapirate + step, 1, 10);
  giverate(game);
  const std::string_view failure = keepsettings(game);
  sayit(game, "Sapi rate changed to " + std::to_string(game.sapirate) + "." +
                  (failure.empty() ? "" : "  ") + std::string(failure));
}

}  // namespace duskmarch
