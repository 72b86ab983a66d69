#include "platform/win32/screens.h"

#include <algorithm>

namespace duskmarch {

namespace {

constexpr int usualdpi = USER_DEFAULT_SCREEN_DPI;

RECT freeareaof(HMONITOR monitor) {
  MONITORINFO screen{};
  screen.cbSize = sizeof screen;
  GetMonitorInfoW(monitor, &screen);
  return screen.rcWork;
}

}  // namespace

double deviceratio(HWND window) {
  return static_cast<double>(GetDpiForWindow(window)) / usualdpi;
}

int devicepixels(HWND window, int pixels) {
  return MulDiv(pixels, static_cast<int>(GetDpiForWindow(window)), usualdpi);
}

RECT freearea(HWND window) {
  return freeareaof(MonitorFromWindow(window, MONITOR_DEFAULTTONEAREST));
}

RECT onscreen(RECT area) {
  const RECT free = freeareaof(MonitorFromRect(&area, MONITOR_DEFAULTTONEAREST));
  const LONG width = std::min(area.right - area.left, free.right - free.left);
  const LONG height = std::min(area.bottom - area.top, free.bottom - free.top);
  const LONG left = std::clamp(area.left, free.left, free.right - width);
  const LONG top = std::clamp(area.top, free.top, free.bottom - height);
  return {left, top, left + width, top + height};
}

}  // namespace duskmarch
