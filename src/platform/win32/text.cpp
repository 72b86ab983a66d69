#include "platform/win32/text.h"

#include <windows.h>

namespace duskmarch {

std::wstring utf16(std::string_view text) {
  const int size = static_cast<int>(text.size());
  const int units = MultiByteToWideChar(CP_UTF8, 0, text.data(), size, nullptr, 0);
  std::wstring wide(static_cast<std::size_t>(units), L'\0');
  MultiByteToWideChar(CP_UTF8, 0, text.data(), size, wide.data(), units);
  return wide;
}

std::string utf8(std::wstring_view text) {
  const int size = static_cast<int>(text.size());
  const int bytes =
      WideCharToMultiByte(CP_UTF8, 0, text.data(), size, nullptr, 0, nullptr, nullptr);
  std::string narrow(static_cast<std::size_t>(bytes), '\0');
  WideCharToMultiByte(CP_UTF8, 0, text.data(), size, narrow.data(), bytes, nullptr, nullptr);
  return narrow;
}

}  // namespace duskmarch
