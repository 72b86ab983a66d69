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
  quint32 scancode = 0;  // X11 key code of the place; 0: not known
  Qt::KeyboardModifiers modifiers;
};

// The key that the game is given: a code of 0 for one that it does not know, nothing for a modifier
// that goes with another key.
std::optional<KeyPress> virtualkey(const PressedKey& pressed);
std::optional<KeyPress> virtualkey(const QKeyEvent& event);

}  // namespace duskmarch
