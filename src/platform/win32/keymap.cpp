#include "platform/win32/keymap.h"

#include <algorithm>
#include <array>

#include "platform/frontend/keyplaces.h"
#include "shell/speech/speechengines.h"

namespace duskmarch {

namespace {

constexpr std::array companions = {VK_SHIFT,   VK_MENU,    VK_LWIN,  VK_RWIN,
                                   VK_CAPITAL, VK_NUMLOCK, VK_SCROLL};

template <typename List>
bool isone(const List& list, int key) {
  return std::ranges::find(list, key) != list.end();
}

bool isdown(int key) {
  return GetKeyState(key) < 0;
}

int modifiersnow() {
  return (isdown(VK_SHIFT) ? modifier::shift : 0) + (isdown(VK_CONTROL) ? modifier::ctrl : 0) +
         (isdown(VK_MENU) ? modifier::alt : 0);
}

bool isletter(int key) {
  return key >= 'A' && key <= 'Z';
}

// A character of Greek, Cyrillic, Hebrew ...
bool isforeign(int printed) {
  return printed > 0xFF;
}

// The Ctrl that goes ahead of AltGr comes in the same moment.
bool altgrcontrol(WPARAM key, LPARAM details, DWORD time) {
  if (key != VK_CONTROL || (HIWORD(details) & KF_EXTENDED) != 0) return false;
  MSG next;
  if (PeekMessageW(&next, nullptr, WM_KEYFIRST, WM_KEYLAST, PM_NOREMOVE) == 0) return false;
  const bool pressed = next.message == WM_KEYDOWN || next.message == WM_SYSKEYDOWN;
  return pressed && next.wParam == VK_MENU && (HIWORD(next.lParam) & KF_EXTENDED) != 0 &&
         next.time == time;
}

int keycode(const PressedKey& pressed) {
  if (isletter(pressed.virtualkey)) return pressed.virtualkey;
  const int place = pressed.extended ? 0 : pressed.scancode;
  if (const int code = keyatplace(place)) return code;
  // An input method keeps what the key is to itself.
  if (isforeign(pressed.printed) || pressed.virtualkey == VK_PROCESSKEY) {
    return letteratplace(place);
  }
  return pressed.virtualkey;
}

}  // namespace

PressedKey pressedkey(WPARAM key, LPARAM details) {
  const auto code = static_cast<UINT>(key);
  // A dead key has the highest bit set.
  const UINT printed = MapVirtualKeyW(code, MAPVK_VK_TO_CHAR) & 0x7FFFFFFFU;
  return {.virtualkey = static_cast<int>(code),
          .scancode = LOBYTE(HIWORD(details)),
          .extended = (HIWORD(details) & KF_EXTENDED) != 0,
          .printed = static_cast<int>(printed),
          .shift = modifiersnow()};
}

std::optional<KeyPress> virtualkey(const PressedKey& pressed) {
  if (isone(companions, pressed.virtualkey)) return std::nullopt;
  if (pressed.virtualkey == VK_PACKET) return std::nullopt;  // its place is no place
  if (pressed.scancode == 0 && isone(readingkeys, pressed.virtualkey)) return std::nullopt;
  return KeyPress{keycode(pressed), pressed.shift};
}

std::optional<KeyPress> virtualkey(WPARAM key, LPARAM details, DWORD time) {
  if (altgrcontrol(key, details, time)) return std::nullopt;
  return virtualkey(pressedkey(key, details));
}

bool forthesystem(const PressedKey& pressed) {
  return (pressed.shift & (modifier::alt | modifier::ctrl)) == modifier::alt &&
         (pressed.virtualkey == VK_F4 || pressed.virtualkey == VK_SPACE);
}

}  // namespace duskmarch
