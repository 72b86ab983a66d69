#include "platform/qt/keymap.h"

#include <QKeyEvent>
#include <algorithm>
#include <array>
#include <span>

#include "platform/frontend/keyplaces.h"
#include "shell/speech/keycodes.h"

namespace duskmarch {

namespace {

struct Name {
  int key;
  int keycode;
};

constexpr std::array names = {
    Name{Qt::Key_Backspace, key::backspace},
    Name{Qt::Key_Tab, key::tab},
    Name{Qt::Key_Backtab, key::tab},
    Name{Qt::Key_Return, key::enter},
    Name{Qt::Key_Enter, key::enter},
    Name{Qt::Key_Control, key::ctrl},
    Name{Qt::Key_Escape, key::escape},
    Name{Qt::Key_Space, key::space},
    Name{Qt::Key_PageUp, key::pageup},
    Name{Qt::Key_PageDown, key::pagedown},
    Name{Qt::Key_End, key::end},
    Name{Qt::Key_Home, key::home},
    Name{Qt::Key_Left, key::left},
    Name{Qt::Key_Up, key::up},
    Name{Qt::Key_Right, key::right},
    Name{Qt::Key_Down, key::down},
    Name{Qt::Key_Delete, key::del},
    Name{Qt::Key_F1, key::f1},
    Name{Qt::Key_F2, key::f2},
    Name{Qt::Key_F3, key::f3},
    Name{Qt::Key_F4, key::f4},
    Name{Qt::Key_F5, key::f5},
    Name{Qt::Key_F6, key::f6},
    Name{Qt::Key_F7, key::f7},
    Name{Qt::Key_F8, key::f8},
    Name{Qt::Key_F9, key::f9},
    Name{Qt::Key_F11, key::f11},
};

// Punctuation by what is printed on it, where its place says nothing.
constexpr std::array characters = {
    Name{Qt::Key_Equal, key::equals},
    Name{Qt::Key_Plus, key::equals},
    Name{Qt::Key_Minus, key::minus},
    Name{Qt::Key_Underscore, key::minus},
    Name{Qt::Key_Comma, key::comma},
    Name{Qt::Key_Less, key::comma},
    Name{Qt::Key_Period, key::period},
    Name{Qt::Key_Greater, key::period},
    Name{Qt::Key_BracketLeft, key::leftbracket},
    Name{Qt::Key_BraceLeft, key::leftbracket},
    Name{Qt::Key_BracketRight, key::rightbracket},
    Name{Qt::Key_BraceRight, key::rightbracket},
};

constexpr std::array keypadcharacters = {
    Name{Qt::Key_Plus, key::keypadplus},
    Name{Qt::Key_Minus, key::keypadminus},
};

constexpr std::array companions = {
    Qt::Key_Shift,    Qt::Key_Alt,        Qt::Key_AltGr,   Qt::Key_Meta,
    Qt::Key_Super_L,  Qt::Key_Super_R,    Qt::Key_Hyper_L, Qt::Key_Hyper_R,
    Qt::Key_CapsLock, Qt::Key_ScrollLock, Qt::Key_NumLock, Qt::Key_Mode_switch,
};

int named(std::span<const Name> table, int qtkey) {
  const auto found = std::ranges::find(table, qtkey, &Name::key);
  return found == table.end() ? 0 : found->keycode;
}

bool islatinletter(int qtkey) {
  return qtkey >= Qt::Key_A && qtkey <= Qt::Key_Z;
}

// A character of Greek, Cyrillic, Hebrew ...; Qt's keys without a character lie above.
bool isforeign(int qtkey) {
  return qtkey > 0xFF && qtkey < Qt::Key_Escape;
}

int placeof(const PressedKey& pressed) {
  return static_cast<int>(pressed.scancode) - x11offset;
}

int keycode(const PressedKey& pressed) {
  if (islatinletter(pressed.key)) return pressed.key;
  if (const int code = named(names, pressed.key)) return code;
  // Punctuation goes by its place: what a key gives changes with the layout and with Shift.
  if (const int code = keyatplace(placeof(pressed))) return code;
  if (isforeign(pressed.key)) return letteratplace(placeof(pressed));
  const bool keypad = pressed.modifiers.testFlag(Qt::KeypadModifier);
  return keypad ? named(keypadcharacters, pressed.key) : named(characters, pressed.key);
}

// A key may be a companion by its place alone, such as the Caps Lock that changes the layout.
bool iscompanion(const PressedKey& pressed) {
  if (std::ranges::find(companions, pressed.key) != companions.end()) return true;
  return companionplace(placeof(pressed)) && named(names, pressed.key) == 0;
}

int mask(Qt::KeyboardModifiers modifiers) {
  return (modifiers.testFlag(Qt::ShiftModifier) ? modifier::shift : 0) +
         (modifiers.testFlag(Qt::ControlModifier) ? modifier::ctrl : 0) +
         (modifiers.testFlag(Qt::AltModifier) ? modifier::alt : 0);
}

}  // namespace

std::optional<KeyPress> virtualkey(const PressedKey& pressed) {
  if (iscompanion(pressed)) return std::nullopt;
  return KeyPress{keycode(pressed), mask(pressed.modifiers)};
}

std::optional<KeyPress> virtualkey(const QKeyEvent& event) {
  return virtualkey({event.key(), event.nativeScanCode(), event.modifiers()});
}

}  // namespace duskmarch
