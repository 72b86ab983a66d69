// The speech engines, one row each: what a `speechmode` means.
#pragma once

#include <array>
#include <string_view>

#include "game.h"
#include "shell/speech/keycodes.h"

namespace duskmarch {

// Whether a text cuts off what is being said or is said after it.
enum class Saying { atonce, afterwards };

// What goes wrong in an engine is logged as an error of `sayit`, and costs that text alone.
struct SpeechEngine {
  int mode;                      // its `speechmode`
  std::string_view sound;        // names it when the player comes to it
  bool resttitle = false;        // it does not speak by the title, which then shows the game's name
  bool speaksprompts = false;    // it says a box's prompt before the box opens
  bool (&there)(Game&);          // whether it can be chosen now; otherwise
  int fallback;                  // the engine that is chosen instead, and
  std::string_view whenmissing;  // what is said then
  void (&speak)(Game&, std::string_view text);  // for sayit()
  // Says what a screen reader would read; null where only a screen reader listens.
  void (*read)(Game&, std::string_view text, Saying) = nullptr;
  void (&silence)(Game&);     // cuts off what is being said
  void (&keypressed)(Game&);  // the player pressed a key
};

// The row of the current `speechmode`.
const SpeechEngine& speechengine(const Game& game);

// What mode 2 presses to have the title read.
inline constexpr std::array readingkeys = {key::ctrl, key::shift, key::t};

}  // namespace duskmarch
