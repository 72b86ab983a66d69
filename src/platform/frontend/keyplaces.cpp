#include "platform/frontend/keyplaces.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "shell/speech/keycodes.h"

namespace duskmarch {

namespace {

struct Place {
  int scancode;
  int keycode;
};

constexpr std::array places = {
    Place{0x0C, key::minus},        Place{0x0D, key::equals},     Place{0x1A, key::leftbracket},
    Place{0x1B, key::rightbracket}, Place{0x33, key::comma},      Place{0x34, key::period},
    Place{0x4A, key::keypadminus},  Place{0x4E, key::keypadplus},
};

struct Row {
  int first;  // the scan code of its first letter
  std::string_view letters;
};

constexpr std::array letterrows = {Row{0x10, "QWERTYUIOP"}, Row{0x1E, "ASDFGHJKL"},
                                   Row{0x2C, "ZXCVBNM"}};

// Left and right Shift, Alt, Caps Lock, Num Lock, Scroll Lock.
constexpr std::array companions = {0x2A, 0x36, 0x38, 0x3A, 0x45, 0x46};

}  // namespace

int keyatplace(int scancode) {
  const auto found = std::ranges::find(places, scancode, &Place::scancode);
  return found == places.end() ? 0 : found->keycode;
}

int letteratplace(int scancode) {
  for (const Row& row : letterrows) {
    const int index = scancode - row.first;
    if (index >= 0 && index < static_cast<int>(row.letters.size())) {
      return row.letters[static_cast<std::size_t>(index)];
    }
  }
  return 0;
}

bool companionplace(int scancode) {
  return std::ranges::find(companions, scancode) != companions.end();
}

}  // namespace duskmarch
