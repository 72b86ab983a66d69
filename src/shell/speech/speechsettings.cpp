#include "shell/speech/speechsettings.h"

#include <algorithm>
#include <string>

#include "audio/sounds.h"
#include "shell/speech/progress.h"
#include "shell/speech/speech.h"
#include "shell/speech/speechengines.h"
#include "shell/speech/title.h"
#include "values/speechrate.h"

namespace duskmarch {

namespace {

std::string restingtitle(const Game& game) {
  return "Quorvane's Duskmarch (v" + game.version + ")";
}

// Its sound announces an engine; words only say that another one had to be taken.
void announce(Game& game, const SpeechEngine& chosen, bool there) {
  if (chosen.resttitle) settitle(game, restingtitle(game));
  if (there) playeffect(game, std::string(chosen.sound));
}

}  // namespace

void switchengine(Game& game) {
  speechengine(game).silence(game);
  game.speechmode = (game.speechmode + 1) % speechmode::count;
  const SpeechEngine& chosen = speechengine(game);
  const bool there = chosen.there(game);
  if (!there) game.speechmode = chosen.fallback;
  announce(game, chosen, there);
  saveprogress(game);
  if (!there) sayit(game, chosen.whenmissing);
  sayadded(game);
}

void changerate(Game& game, int step) {
  game.sapirate = std::clamp(game.sapirate + step, speechrate::slowest, speechrate::fastest);
  giverate(game);
  saveprogress(game);
  sayit(game, "Sapi rate changed to " + std::to_string(game.sapirate) + ".");
}

}  // namespace duskmarch
