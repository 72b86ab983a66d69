// Which key was pressed, as a virtual key code of the game.
#pragma once

#include <optional>

#include <windows.h>

#include "game.h"
#include "shell/speech/keycodes.h"

namespace duskmarch {

// What the system tells of a key press.
struct PressedKey {
  int virtualkey = 0;
  int scancode = 0;       // of the place on the keyboard; 0: not known, a program sent it
  bool extended = false;  // a place that has its code from another one, with a prefix
  int printed = 0;        // the character on it in the layout of the moment, if it has one
  int shift = modifier::none;
};

// From the message of a key press that is being handled.
PressedKey pressedkey(WPARAM key, LPARAM details);

// The key that the game is given; nothing for a key that goes with another one, and for the keys
// that mode 2 sends, which come without a place.
std::optional<KeyPress> virtualkey(const PressedKey& pressed);
// The same from the message that is being handled, and its time. The Ctrl that the system sends
// ahead of every AltGr is no key of its own.
std::optional<KeyPress> virtualkey(WPARAM key, LPARAM details, DWORD time);
// Whether the key is the system's, and no key of the game: Alt+F4, Alt+Space.
bool forthesystem(const PressedKey& pressed);

}  // namespace duskmarch
