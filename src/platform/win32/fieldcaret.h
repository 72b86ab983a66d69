// Where the caret of an EDIT stands.
#pragma once

#include <cstddef>

#include <windows.h>

namespace duskmarch {

// It is the end of the selection that moves: the system tells the ends, and not which one that is.
// So this has to be asked before each key that may move it, and after.
class FieldCaret {
 public:
  // In UTF-16 units from the start of the text.
  std::size_t place(HWND edit);

 private:
  DWORD anchor_ = 0;  // where the selection began
};

}  // namespace duskmarch
