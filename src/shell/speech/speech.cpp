#include "shell/speech/speech.h"

#include <algorithm>
#include <string>
#include <utility>

#include "shell/speech/guarded.h"
#include "shell/speech/speechengines.h"
#include "shell/speech/spokenline.h"

namespace duskmarch {

namespace {

// Parts sentences as two spaces do, however the first text ends.
void append(std::string& text, std::string_view sentence) {
  while (text.ends_with(' ')) text.pop_back();
  if (!text.empty()) text += "  ";
  text += sentence;
}

// The text with what was added to it, which a story page and a look at the history put off.
std::string withadded(Game& game, std::string_view text) {
  std::string whole(text);
  if (text.empty() || game.storyshown || game.reviewpos != 0) return whole;
  if (!game.addedsentences.empty()) append(whole, std::exchange(game.addedsentences, {}));
  return whole;
}

}  // namespace

void sayit(Game& game, std::string_view text) {
  const std::string whole = withadded(game, text);
  if (!whole.empty() && game.reviewpos == 0) game.saidlines.remember(whole);
  guarded(game, [&] { paintspokenline(game, whole); });
  speechengine(game).speak(game, whole);
}

void addsentence(Game& game, std::string_view sentence) {
  append(game.addedsentences, sentence);
}

void sayadded(Game& game) {
  if (game.addedsentences.empty() || game.storyshown) return;
  sayit(game, std::exchange(game.addedsentences, {}));
}

void setupsapi(Game& game) {
  try {
    game.sapivoice = game.desktop.system.createvoice();
    game.sapiready = 1;
  } catch (const PlatformError&) {
    game.sapiready = 0;
  }
}

void loadjaws(Game& game) {
  try {
    game.jawsapi = game.desktop.system.createjaws();
    game.jawsready = game.jawsapi->there() ? 1 : 0;
  } catch (const PlatformError&) {
    game.jawsready = 0;
  }
}

void reviewhistory(Game& game, KeyPress press) {
  const bool newer = press.keycode == key::leftbracket || press.keycode == key::comma;
  int step = 0;
  if (press.shift == modifier::none) step = 1;
  if (press.shift == modifier::shift) step = 5;
  game.reviewpos = std::clamp(game.reviewpos + (newer ? -step : step), 0, SaidLines::oldest);
  if (game.reviewpos == 0) return sayit(game, "");
  sayit(game, "Rev " + std::to_string(game.reviewpos) + ", " + game.saidlines[game.reviewpos]);
}

void giverate(Game& game) {
  guarded(game, [&] {
    if (game.sapiready == 1) game.sapivoice->setrate(game.sapirate);
  });
}

}  // namespace duskmarch
