// The places of a keyboard that are keys of the game whatever is printed on them. A place is named
// by its PC scan code (set 1, keys without a prefix), as Windows gives it.
#pragma once

namespace duskmarch {

// X11 and Wayland number the same places so much higher.
inline constexpr int x11offset = 8;

// The virtual key code of the punctuation or keypad key in that place; 0 in any other.
int keyatplace(int scancode);
// The letter in that place of a Latin keyboard, which is its virtual key code too; 0 in any other.
int letteratplace(int scancode);
// Whether the key in that place is Shift, Alt or a lock: by itself the game is not given it.
bool companionplace(int scancode);

}  // namespace duskmarch
