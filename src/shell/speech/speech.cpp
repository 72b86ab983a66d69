#include "shell/speech/speech.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "debuglog.h"
#include "values/utf8.h"

namespace duskmarch {

namespace {

constexpr Colour black{0, 0, 0};
constexpr Colour white{255, 255, 255};

// Runs one step of sayit(); what goes wrong in it costs that step alone.
template <typename Step>
void guarded(const Game& game, Step step) {
  try {
    step();
  } catch (const std::exception& error) {
    logerror(game, "sayit", error.what());
  }
}

// Paints the text in large letters, wrapped by its number of characters, over what the previous
// text left.
void paint(Game& game, std::string_view text) {
  Canvas* canvas = game.desktop.window.canvas();
  if (canvas == nullptr) return;
  const int width = canvas->width();
  const int blackedout = game.printedlines <= 1 ? 100 : 100 + 40 * (game.printedlines - 1);
  canvas->fill({0, 0, width, blackedout}, black);
  const double linelength = width / 28.0 * 1.6;
  const auto length = static_cast<double>(codepoints(text));
  const auto shown = static_cast<std::size_t>(std::nearbyint(linelength));
  for (int i = 0; i <= length / linelength; ++i) {
    const int top = 40 * i + 15;
    if (top > canvas->height()) break;
    if (i > 1) canvas->fill({0, top, width, top + 40}, black);
    const auto first = static_cast<std::size_t>(std::nearbyint(i * linelength));
    canvas->text(5, top, "Arial", 28, white, codepointrange(text, first, shown));
    game.printedlines = i;
  }
}

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

void speakbyjaws(Game& game, std::string_view text) {
  guarded(game, [&] {
    if (!game.jawsapi) throw PlatformError("there is no JAWS interface");
    game.jawsapi->saystring(text);
  });
}

void speak(Game& game, std::string_view text) {
  switch (game.speechmode) {
    case 0: return speakbyvoice(game, text);
    case 1: return speakbytitle(game, text);
    case 2: speakbytitle(game, text); return sendreadingkeys(game);
    default: return speakbyjaws(game, text);
  }
}

}  // namespace

void sayit(Game& game, std::string_view text) {
  if (!text.empty() && game.reviewpos == 0) game.saidlines.remember(text);
  guarded(game, [&] { paint(game, text); });
  speak(game, text);
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
    game.jawsready = 1;
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

void settitle(Game& game, std::string_view title) {
  game.caption = title;
  game.desktop.window.settitle(title);
}

void giverate(Game& game) {
  guarded(game, [&] {
    if (game.sapiready == 1) game.sapivoice->setrate(game.sapirate);
  });
}

}  // namespace duskmarch
