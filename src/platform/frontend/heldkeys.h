// Telling a key that is held from one that is pressed again.
#pragma once

#include <cstdint>

#include "shell/speech/keycodes.h"

namespace duskmarch {

// The keys that act once for each press, however long they are held: nobody means to give an order
// twice that way, least of all one not yet read out. All others repeat.
constexpr bool actsonce(int keycode) {
  return keycode == key::enter || keycode == key::space;
}

// One for all the windows of the program: a held key goes on in the box that it opened. Keys are
// told apart by whatever number the system gives them, times are the system's own for its key
// events, in milliseconds.
class HeldKeys {
 public:
  void released(std::uint32_t key, std::uint64_t time);
  // Whether this press only repeats one that has gone before. `flagged`: the system says that it
  // does. It may not know: over X11 a held key is released and pressed anew in the same moment, and
  // a program on a network may send such pairs a little apart. No hand is as quick.
  bool repeats(std::uint32_t key, std::uint64_t time, bool flagged) const;

 private:
  std::uint32_t lastreleased_ = 0;
  std::uint64_t releasetime_ = 0;
};

}  // namespace duskmarch
