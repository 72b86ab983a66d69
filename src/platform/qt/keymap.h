// Which key was pressed, as a virtual key code.
#pragma once

#include <Qt>
#include <QtGlobal>
#include <optional>

#include "game.h"

class QKeyEvent;

namespace duskmarch {

// What Qt tells of a key press.
struct PressedKey {
  int key = 0;           // a Qt::Key
  quint32 scancode = 0;  // X11 key code of the place on the keyboard; 0: not known
  Qt::KeyboardModifiers modifiers;
};

// The key that the game is given: a code of 0 for one that it does not know, nothing for a modifier
// that goes with another key.
std::optional<KeyPress> virtualkey(const PressedKey& pressed);
std::optional<KeyPress> virtualkey(const QKeyEvent& event);
// Whether an Enter or a Space comes again because it is held: nobody means to give an order twice
// that way, least of all one not yet read out.
bool isheldtoolong(const QKeyEvent& event);

}  // namespace duskmarch
