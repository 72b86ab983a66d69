// Sees the keys of all the program's windows before they do.
#pragma once

#include <functional>

#include <windows.h>

namespace duskmarch {

// While it lives, `seen` gets each message of a key that goes up or down as it is taken from the
// queue, whoever takes it: the loops of boxes and menus are the system's own. True drops it. One at
// a time, on the thread of the windows.
class KeyWatch {
 public:
  explicit KeyWatch(std::function<bool(const MSG&)> seen);
  KeyWatch(const KeyWatch&) = delete;
  KeyWatch& operator=(const KeyWatch&) = delete;
  ~KeyWatch();

 private:
  HHOOK hook_;
};

}  // namespace duskmarch
