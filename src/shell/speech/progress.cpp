#include "shell/speech/progress.h"

#include <utility>

#include "ownfiles.h"
#include "shell/speech/busyfiles.h"
#include "shell/speech/settingsfile.h"
#include "shell/speech/speech.h"
#include "values/speechrate.h"
#include "values/textfile.h"

namespace duskmarch {

namespace {

constexpr std::string_view progressfile = "progress.ini";

void tellfailure(Game& game) {
  if (std::exchange(game.writefailuretold, true)) return;
  addsentence(game, "Your speech settings cannot be saved.  The game goes on without saving.");
}

constexpr FileKind progress = {
    .write = writesettings, .written = [](Game&) {}, .failedlate = tellfailure};

}  // namespace

void saveprogress(Game& game) {
  const std::string text = numberline(game.speechmode) + "\r\n" + numberline(game.sapirate) +
                           "\r\n" + game.progressspare + "\r\n";
  const Keeping keeping = keepfile(game, {std::string(progressfile), text, &progress});
  if (keeping == Keeping::failed) tellfailure(game);
}

void readprogress(Game& game) {
  game.firststart = !ownfile(game, progressfile);
  const auto lines = readsettings(game, progressfile, 3, "readprogress");
  if (!lines) return;
  game.speechmode = setting((*lines)[0], 0, speechmode::count - 1).value_or(game.speechmode);
  if (const auto rate = setting((*lines)[1], speechrate::slowest, speechrate::fastest)) {
    game.sapirate = *rate;
    giverate(game);
  }
  game.progressspare = (*lines)[2];
}

}  // namespace duskmarch
