#include "platform/win32/keymap.h"

#include <gtest/gtest.h>

namespace duskmarch {

namespace {

int codeof(const PressedKey& pressed) {
  const auto press = virtualkey(pressed);
  return press ? press->keycode : -1;
}

TEST(Win32Keys, LettersGoByWhatTheyAreAndPunctuationByItsPlace) {
  struct Case {
    const char* what;
    PressedKey pressed;
    int keycode;
  };
  const Case cases[] = {
      {"E", {.virtualkey = 'E', .scancode = 0x12, .printed = 'E'}, key::e},
      {"Dvorak's V, where the period is",
       {.virtualkey = 'V', .scancode = 0x34, .printed = 'V'},
       key::v},
      {"the German + at ]",
       {.virtualkey = VK_OEM_PLUS, .scancode = 0x1B, .printed = '+'},
       key::rightbracket},
      {"the German dead accent at =",
       {.virtualkey = VK_OEM_6, .scancode = 0x0D, .printed = 0xB4},
       key::equals},
      {"a French comma at M",
       {.virtualkey = VK_OEM_COMMA, .scancode = 0x32, .printed = ','},
       key::comma},
      {"a Russian letter without a virtual key of its own",
       {.virtualkey = VK_OEM_7, .scancode = 0x12, .printed = 0x44D},
       key::e},
      {"an input method's M", {.virtualkey = VK_PROCESSKEY, .scancode = 0x32}, key::m},
      {"keypad +", {.virtualkey = VK_ADD, .scancode = 0x4E, .printed = '+'}, key::keypadplus},
      {"keypad Enter", {.virtualkey = VK_RETURN, .scancode = 0x1C, .extended = true}, key::enter},
      {"previous track, which has Q's code with a prefix",
       {.virtualkey = VK_MEDIA_PREV_TRACK, .scancode = 0x10, .extended = true},
       VK_MEDIA_PREV_TRACK},
      {"F11", {.virtualkey = VK_F11, .scancode = 0x57}, key::f11},
      {"a comma that a program sends", {.virtualkey = VK_OEM_COMMA}, key::comma},
      {"the player's Ctrl", {.virtualkey = VK_CONTROL, .scancode = 0x1D}, key::ctrl},
      {"Ctrl, T as mode 2 sends them", {.virtualkey = VK_CONTROL}, -1},
      {"T as mode 2 sends it", {.virtualkey = 'T', .printed = 'T'}, -1},
      {"a letter that no key stands behind", {.virtualkey = VK_PACKET, .scancode = 0x33}, -1},
      {"Shift", {.virtualkey = VK_SHIFT, .scancode = 0x2A}, -1},
      {"AltGr", {.virtualkey = VK_MENU, .scancode = 0x38, .extended = true}, -1},
      {"Windows", {.virtualkey = VK_LWIN, .scancode = 0x5B, .extended = true}, -1},
      {"Caps Lock", {.virtualkey = VK_CAPITAL, .scancode = 0x3A}, -1},
  };
  for (const Case& one : cases) EXPECT_EQ(codeof(one.pressed), one.keycode) << one.what;
}

TEST(Win32Keys, TheSystemKeepsItsOwn) {
  EXPECT_TRUE(forthesystem({.virtualkey = VK_F4, .shift = modifier::alt}));
  EXPECT_TRUE(forthesystem({.virtualkey = VK_SPACE, .shift = modifier::alt}));
  EXPECT_FALSE(forthesystem({.virtualkey = VK_F4}));
  constexpr int altgr = modifier::alt | modifier::ctrl;
  EXPECT_FALSE(forthesystem({.virtualkey = VK_SPACE, .shift = altgr}));
  EXPECT_FALSE(forthesystem({.virtualkey = 'E', .shift = modifier::alt}));
}

}  // namespace

}  // namespace duskmarch
