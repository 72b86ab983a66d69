#include "shell/startup.h"

#include <string>
#include <system_error>
#include <utility>

#include "audio/cues.h"
#include "audio/sounds.h"
#include "debuglog.h"
#include "missions/missions.h"
#include "ownfiles.h"
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

namespace fs = std::filesystem;

// The trace itself stays for the player to send. A log written to since then has told of it.
void reportearliercrash(const Game& game) {
  const auto trace = ownfile(game, crashfile);
  if (!trace) return;
  std::error_code missing;
  const auto crashed = fs::last_write_time(*trace, missing);
  if (missing) return;
  const auto told = fs::last_write_time(ownfile(game, logfile).value_or(fs::path()), missing);
  if (!missing && told > crashed) return;
  logline(game.filesfolder, "An earlier run crashed.  Its keys are in " + textof(*trace));
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
    logline(game.filesfolder, "The sound device cannot be started: " + std::string(error.what()));
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

// Two games would write over each other's files. What the player hears comes by the own voice, if
// there is a way for it.
void refusesecondgame(Game& game) {
  setupsapi(game);
  readprogress(game);
  game.speechmode = speechmode::sapi;
  game.firststart = false;  // Tab would choose nothing here
  giverate(game);
  try {
    game.dsound = game.desktop.system.opensound();
  } catch (const PlatformError&) {
    // The box says it all.
  }
  messagebox(game, "", "Duskmarch is already running.");
  game.ended = true;
  game.desktop.system.end();
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
  game.filesfolder = game.desktop.system.filesfolder();
  game.version = "0.1 testing 3";
  const std::uint32_t clock = game.desktop.system.secondssincemidnight();
  seed(game, clock);
  game.trace.begin(game.version, clock);
  if (game.desktop.system.alreadyrunning()) return refusesecondgame(game);
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
