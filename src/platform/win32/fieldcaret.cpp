#include "platform/win32/fieldcaret.h"

namespace duskmarch {

std::size_t FieldCaret::place(HWND edit) {
  DWORD start = 0;
  DWORD end = 0;
  SendMessageW(edit, EM_GETSEL, reinterpret_cast<WPARAM>(&start), reinterpret_cast<LPARAM>(&end));
  if (start == end || (anchor_ != start && anchor_ != end)) anchor_ = start;
  return anchor_ == start ? end : start;
}

}  // namespace duskmarch
