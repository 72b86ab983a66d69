// Every key as the game knows it, on all kinds of keyboards.
#include "platform/qt/keymap.h"

#include <Qt>

#include <gtest/gtest.h>

namespace duskmarch {

namespace {

struct Case {
  const char* what;
  int key;
  quint32 scancode;
  Qt::KeyboardModifiers modifiers;
  int keycode;
  int shift = 0;
};

constexpr auto none = Qt::NoModifier;
constexpr auto shift = Qt::ShiftModifier;
constexpr auto keypad = Qt::KeypadModifier;
constexpr auto foreign = [](char16_t letter) { return static_cast<int>(letter); };

const Case cases[] = {
    {"a letter", Qt::Key_E, 26, none, 69},
    {"with Shift", Qt::Key_E, 26, shift, 69, 1},
    {"all modifiers", Qt::Key_L, 46, shift | Qt::ControlModifier | Qt::AltModifier, 76, 7},
    {"a letter elsewhere on an AZERTY keyboard", Qt::Key_Z, 25, none, 90},
    {"a letter where a Dvorak keyboard has it", Qt::Key_V, 60, none, 86},
    {"a letter without a place", Qt::Key_N, 0, none, 78},
    {"Russian, on the place of N", foreign(u'Т'), 57, none, 78},
    {"Hebrew, on the place of the comma", foreign(u'ת'), 59, none, 188},
    {"Tab", Qt::Key_Tab, 23, none, 9},
    {"Shift+Tab", Qt::Key_Backtab, 23, shift, 9, 1},
    {"Enter", Qt::Key_Return, 36, none, 13},
    {"the keypad's Enter", Qt::Key_Enter, 104, keypad, 13},
    {"the keypad's arrow", Qt::Key_Up, 80, keypad, 38},
    {"Ctrl itself", Qt::Key_Control, 37, Qt::ControlModifier, 17, 2},
    {"Escape", Qt::Key_Escape, 9, none, 27},
    {"Space", Qt::Key_Space, 65, none, 32},
    {"PageUp", Qt::Key_PageUp, 112, none, 33},
    {"Delete", Qt::Key_Delete, 119, none, 46},
    {"Backspace", Qt::Key_Backspace, 22, none, 8},
    {"F9", Qt::Key_F9, 75, none, 120},
    {"Shift and minus", Qt::Key_Underscore, 20, shift, 189, 1},
    {"a German sharp s, where minus is", Qt::Key_ssharp, 20, none, 189},
    {"a German u umlaut, where [ is", Qt::Key_Udiaeresis, 34, none, 219},
    {"the minus of a German keyboard", Qt::Key_Minus, 61, none, 189},
    {"Shift and ]", Qt::Key_BraceRight, 35, shift, 221, 1},
    {"[ without a place", Qt::Key_BracketLeft, 0, none, 219},
    {"Shift and = without a place", Qt::Key_Plus, 0, shift, 187, 1},
    {"the keypad's plus", Qt::Key_Plus, 86, keypad, 107},
    {"the keypad's plus without a place", Qt::Key_Plus, 0, keypad, 107},
    {"the keypad's minus", Qt::Key_Minus, 82, keypad, 109},
    {"the keypad's point is no review key", Qt::Key_Period, 91, keypad, 0},
    {"F1", Qt::Key_F1, 67, none, 112},
    {"F8", Qt::Key_F8, 74, none, 119},
    {"F11", Qt::Key_F11, 95, none, 122},
    {"Home", Qt::Key_Home, 110, none, 36},
    {"End", Qt::Key_End, 115, none, 35},
    {"Caps Lock as another Ctrl", Qt::Key_Control, 66, none, 17},
    {"a key of no meaning", Qt::Key_F12, 96, none, 0}};

TEST(KeyMap, GivesTheVirtualKeyCode) {
  for (const Case& one : cases) {
    const auto press = virtualkey({one.key, one.scancode, one.modifiers});
    ASSERT_TRUE(press) << one.what;
    EXPECT_EQ(press->keycode, one.keycode) << one.what;
    EXPECT_EQ(press->shift, one.shift) << one.what;
  }
}

TEST(KeyMap, LeavesOutModifiersThatGoWithAnotherKey) {
  EXPECT_FALSE(virtualkey({Qt::Key_Shift, 50, Qt::ShiftModifier}));
  EXPECT_FALSE(virtualkey({Qt::Key_Alt, 64, Qt::AltModifier}));
  EXPECT_FALSE(virtualkey({Qt::Key_AltGr, 108, Qt::NoModifier}));
  EXPECT_FALSE(virtualkey({Qt::Key_unknown, 66, Qt::NoModifier})) << "Caps Lock for the layout";
}

}  // namespace

}  // namespace duskmarch
