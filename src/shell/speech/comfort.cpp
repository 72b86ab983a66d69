#include "shell/speech/comfort.h"

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "audio/cues.h"
#include "shell/speech/busyfiles.h"
#include "shell/speech/guarded.h"
#include "shell/speech/settingsfile.h"
#include "shell/speech/speech.h"
#include "values/textfile.h"

namespace duskmarch {

namespace {

constexpr std::string_view comfortfile = "comfort.ini";
enum Line : std::size_t { descriptions, cuevolume, ambiencevolume, voice, count };

bool setvoice(Game& game, std::string_view name) {
  bool set = false;
  guarded(game, [&] { set = game.sapivoice->setvoice(name); });
  return set;
}

// Without a voice, the one that was chosen is kept for the day on which there is one again.
void restorevoice(Game& game) {
  if (game.sapiready == 0 || game.voicename.empty() || setvoice(game, game.voicename)) return;
  addsentence(game, "The voice " + std::exchange(game.voicename, {}) + " is gone.");
}

std::vector<std::string> voicenames(Game& game) {
  std::vector<std::string> names;
  guarded(game, [&] {
    if (game.sapiready == 1) names = game.sapivoice->voicenames();
  });
  return names;
}

std::size_t neighbour(std::size_t place, int step, std::size_t size) {
  return step > 0 ? (place + 1) % size : (place + size - 1) % size;
}

void changevolume(Game& game, int& volume, int step) {
  volume = std::clamp(volume + step, 0, loudest);
  setcuevolumes(game);
  keepcomfort(game);
}

void tellfailure(Game& game) {
  if (std::exchange(game.comfortfailuretold, true)) return;
  addsentence(game, "These settings cannot be kept.");
}

constexpr FileKind comfort = {
    .write = writesettings, .written = [](Game&) {}, .failedlate = tellfailure};

}  // namespace

void readcomfort(Game& game) {
  const auto lines = readsettings(game, comfortfile, count, "readcomfort");
  if (!lines) return;
  game.fulldescriptions = setting((*lines)[descriptions], 0, 1).value_or(1) == 1;
  game.cuevolume = setting((*lines)[cuevolume], 0, loudest).value_or(game.cuevolume);
  game.ambiencevolume = setting((*lines)[ambiencevolume], 0, loudest).value_or(game.ambiencevolume);
  game.voicename = trim((*lines)[voice]);
  restorevoice(game);
}

void keepcomfort(Game& game) {
  const std::string text = numberline(game.fulldescriptions ? 1 : 0) + "\r\n" +
                           numberline(game.cuevolume) + "\r\n" + numberline(game.ambiencevolume) +
                           "\r\n" + game.voicename + "\r\n";
  const Keeping keeping = keepfile(game, {std::string(comfortfile), text, &comfort});
  if (keeping == Keeping::failed) tellfailure(game);
}

void toggledescriptions(Game& game) {
  game.fulldescriptions = !game.fulldescriptions;
  keepcomfort(game);
  sayit(game, game.fulldescriptions ? "Full descriptions." : "Short descriptions.");
}

void changecuevolume(Game& game, int step) {
  changevolume(game, game.cuevolume, step);
  playcue(game, cue::hitenemy);
  sayit(game, "Sounds " + std::to_string(game.cuevolume) + ".");
}

void changeambiencevolume(Game& game, int step) {
  changevolume(game, game.ambiencevolume, step);  // what is heard of the place is the example
  sayit(game, "Ambience " + std::to_string(game.ambiencevolume) + ".");
}

void changevoice(Game& game, int step) {
  const std::vector<std::string> names = voicenames(game);
  if (names.size() < 2) return sayit(game, "There is no other voice.");
  const auto known = std::ranges::find(names, game.voicename);
  std::size_t place = known == names.end() ? 0 : static_cast<std::size_t>(known - names.begin());
  std::string gone;
  for (std::size_t tries = 1; tries < names.size(); ++tries) {
    place = neighbour(place, step, names.size());
    const std::string& name = names[place];
    if (setvoice(game, name)) {
      game.voicename = place == 0 ? std::string() : name;
      keepcomfort(game);
      return sayit(game, gone + name);
    }
    gone += "The voice " + name + " is gone.  ";
  }
  sayit(game, gone + "There is no other voice.");
}

}  // namespace duskmarch
