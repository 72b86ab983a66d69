#include "platform/win32/screenreader.h"

#include <windows.h>

namespace duskmarch {

namespace {

// Not every compiler's library knows the call.
bool automationheard() {
  using AreListening = BOOL(WINAPI*)();
  static const HMODULE library =
      LoadLibraryExW(L"uiautomationcore.dll", nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32);
  static const auto arelistening = reinterpret_cast<AreListening>(reinterpret_cast<void*>(
      library == nullptr ? nullptr : GetProcAddress(library, "UiaClientsAreListening")));
  return arelistening != nullptr && arelistening() != 0;
}

}  // namespace

bool readerflag() {
  BOOL set = FALSE;
  return SystemParametersInfoW(SPI_GETSCREENREADER, 0, &set, 0) != 0 && set != 0;
}

bool readerlistens() {
  return readerflag() || automationheard();
}

}  // namespace duskmarch
