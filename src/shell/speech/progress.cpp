#include "shell/speech/progress.h"

#include "shell/speech/settingsfile.h"
#include "shell/speech/speech.h"
#include "values/filelookup.h"
#include "values/speechrate.h"
#include "values/textfile.h"

namespace duskmarch {

namespace {

constexpr std::string_view progressfile = "progress.ini";

}  // namespace

bool saveprogress(const Game& game) {
  return writesettings(game, progressfile,
                       numberline(game.speechmode) + "\r\n" + numberline(game.sapirate) + "\r\n" +
                           game.progressspare + "\r\n");
}

void readprogress(Game& game) {
  game.firststart = !findfile(game.programfolder, progressfile);
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
