#include "shell/speech/speechengines.h"

#include <string>

#include "shell/speech/guarded.h"
#include "shell/speech/title.h"

namespace duskmarch {

namespace {

void nothing(Game& /*game*/) {}

bool always(Game& /*game*/) {
  return true;
}

// The game's own voice.

void speakbyvoice(Game& game, std::string_view text) {
  guarded(game, [&] {
    if (game.sapiready == 1) {
      game.sapivoice->speak(text);
    } else {
      settitle(game, text);
    }
  });
  game.desktop.window.processevents();
}

void readbyvoice(Game& game, std::string_view text, Saying saying) {
  if (game.sapiready == 0) return;
  guarded(game, [&] {
    if (saying == Saying::atonce) {
      game.sapivoice->speak(text);
    } else {
      game.sapivoice->speakafter(text);
    }
  });
}

void hushvoice(Game& game) {
  guarded(game, [&] {
    if (game.sapiready == 1) game.sapivoice->hush();
  });
}

// The screen readers that read the title.

// A title that did not change would not be heard again.
void speakbytitle(Game& game, std::string_view text) {
  guarded(game, [&] {
    if (game.caption == text) {
      settitle(game, std::string(text) + " ");
      game.desktop.window.processevents();
    }
    settitle(game, text);
  });
}

// Asks Window-Eyes to read the title. The keys come back to our own window, which knows by
// `sendingkeys` that nobody pressed them.
void sendreadingkeys(Game& game) {
  game.sendingkeys = true;
  guarded(game, [&] {
    for (const int code : readingkeys) game.desktop.window.sendkey(code, true);
    game.desktop.window.processevents();
    for (const int code : readingkeys) game.desktop.window.sendkey(code, false);
    game.desktop.window.processevents();
  });
  game.sendingkeys = false;
}

void speakbytitleandkeys(Game& game, std::string_view text) {
  speakbytitle(game, text);
  sendreadingkeys(game);
}

// JAWS.

// It may have come, or gone, since the start.
bool jawsthere(Game& game) {
  if (game.jawsapi) game.jawsready = game.jawsapi->there() ? 1 : 0;
  return game.jawsready == 1;
}

void speakbyjaws(Game& game, std::string_view text) {
  guarded(game, [&] {
    if (!game.jawsapi) throw PlatformError("there is no JAWS interface");
    game.jawsapi->saystring(text);
  });
}

void interruptjaws(Game& game) {
  guarded(game, [&] {
    if (game.jawsapi) game.jawsapi->interrupt();
  });
}

void readbyjaws(Game& game, std::string_view text, Saying saying) {
  if (saying == Saying::atonce) interruptjaws(game);
  speakbyjaws(game, text);
}

// By `speechmode`.
constexpr std::array<SpeechEngine, speechmode::count> engines = {{
    {.mode = speechmode::sapi,
     .sound = "/sounds/Menu/SAPI.wav",
     .resttitle = true,
     .speaksprompts = true,
     .there = always,
     .fallback = speechmode::sapi,
     .whenmissing = "",
     .speak = speakbyvoice,
     .read = readbyvoice,
     .silence = hushvoice,
     .keypressed = nothing},
    {.mode = speechmode::nvda,
     .sound = "/sounds/Menu/NVDA.wav",
     .there = always,
     .fallback = speechmode::nvda,
     .whenmissing = "",
     .speak = speakbytitle,
     .silence = nothing,
     .keypressed = nothing},
    {.mode = speechmode::windoweyes,
     .sound = "/sounds/Menu/WE.wav",
     .there = always,
     .fallback = speechmode::windoweyes,
     .whenmissing = "",
     .speak = speakbytitleandkeys,
     .silence = nothing,
     .keypressed = nothing},
    {.mode = speechmode::jaws,
     .sound = "/sounds/Menu/JAWS.wav",
     .resttitle = true,
     .there = jawsthere,
     .fallback = speechmode::sapi,
     .whenmissing = "Jaws does not seem to be responding, Sapi on.",
     .speak = speakbyjaws,
     .read = readbyjaws,
     .silence = interruptjaws,
     .keypressed = interruptjaws},
}};
static_assert(
    [] {
      for (int mode = 0; mode < speechmode::count; ++mode) {
        if (engines.at(static_cast<std::size_t>(mode)).mode != mode) return false;
      }
      return true;
    }(),
    "the rows stand by their modes");

}  // namespace

const SpeechEngine& speechengine(const Game& game) {
  return engines.at(static_cast<std::size_t>(game.speechmode));
}

}  // namespace duskmarch
