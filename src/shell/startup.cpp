#include "shell/startup.h"

#include <string>
#include <system_error>
#include <utility>

#include "audio/cues.h"
#include "audio/sounds.h"
#include "debuglog.h"
#include "missions/missions.h"
#include "shell/speech/comfort.h"
#include "shell/speech/guarded.h"
#include "shell/speech/pages.h"
#include "shell/speech/progress.h"
#include "shell/speech/speech.h"
#include "shell/speech/spokenline.h"
#include "values/pathtext.h"
#include "values/speechrate.h"
#include "world/chance.h"
#include "world/drawnmap.h"
#include "world/tables.h"

namespace duskmarch {

namespace {

// The trace itself stays for the player to send. A log written to since then has told of it.
void reportearliercrash(const Game& game) {
  const std::filesystem::path trace = game.programfolder / crashfile;
  std::error_code missing;
  const auto crashed = std::filesystem::last_write_time(trace, missing);
  if (missing) return;
  const auto told = std::filesystem::last_write_time(game.programfolder / logfile, missing);
  if (!missing && told > crashed) return;
  logline(game.programfolder, "An earlier run crashed.  Its keys are in " + textof(trace));
}

void startspeech(Game& game) {
  setupsapi(game);
  game.sapirate = speechrate::usual;
  giverate(game);
  loadjaws(game);
}

bool startsound(Game& game) {
  game.maxbuffer = soundbuffercount - 1;
  try {
    game.dsound = game.desktop.system.opensound();
  } catch (const PlatformError& error) {
    logline(game.programfolder, "The sound device cannot be started: " + std::string(error.what()));
    messagebox(game, "",
               "Unable to start DirectSound. Check to see that your sound card is properly "
               "installed.  Try running ostrav.exe from your Klavern folder.  For some people, "
               "this can correct this issue.");
    return false;
  }
  // Every buffer holds a valid sound from the start.
  for (int buffer = 0; buffer <= game.maxbuffer; ++buffer) {
    setsound(game, buffer, R"(\sounds\menu\arrows.wav)");
  }
  return true;
}

void setvolumes(Game& game) {
  CueDevice& cues = game.dsound->cues();
  cues.setcuevolume(game.cuevolume);
  cues.setambiencevolume(game.ambiencevolume);
}

void startstate(Game& game) {
  game.selected = 1;
  for (int slot = 1; slot <= heroslots; ++slot) emptyheroslot(game.mob(slot));
  game.mobcount = 0;
  game.bonus1 = game.bonus2 = game.bonus3 = 1;
  game.menuname = screen::mainmenu;
  game.menupos = 0;
}

}  // namespace

void startup(Game& game) {
  game.programfolder = game.desktop.system.programfolder();
  game.version = "0.1 testing 3";
  const std::uint32_t clock = game.desktop.system.secondssincemidnight();
  seed(game, clock);
  game.trace.begin(game.version, clock);
  reportearliercrash(game);
  game.reviewpos = 0;
  game.saidlines.clear();
  buildtables(game);
  startspeech(game);
  if (!startsound(game)) {
    game.ended = true;
    return game.desktop.system.end();
  }
  readprogress(game);
  readcomfort(game);
  setvolumes(game);
  game.trace.note("speechmode " + std::to_string(game.speechmode) + ", sapirate " +
                  std::to_string(game.sapirate) + ", sapiready " + std::to_string(game.sapiready) +
                  ", jawsready " + std::to_string(game.jawsready));
  startstate(game);
  setcuevolumes(game);
  sayit(game, "Welcome to Duskmarch, version " + game.version + ", by Quorvane.  Main menu.");
  setambience(game, ambienceof(game));
}

void repaint(Game& game) {
  drawscreen(game);
  repaintspokenline(game);
}

void readerfound(Game& game) {
  if (!std::exchange(game.firststart, false)) return;
  if (game.speechmode != speechmode::sapi || game.sapiready == 0) return;
  guarded(game, [&] {
    game.sapivoice->speakafter("Press Tab once, and your screen reader speaks instead.");
  });
}

}  // namespace duskmarch
