// The way through the menus, by keys.
#pragma once

#include <array>

#include "harness.h"

namespace duskmarch {

using Spoken = std::vector<std::string>;

struct Heard {
  int keycode;
  std::string text;
  int shift = modifier::none;
};

// Presses key after key; each must make the game speak its text and nothing else.
inline void expectspoken(Player& player, const std::vector<Heard>& keys) {
  for (const Heard& heard : keys) {
    EXPECT_EQ(player.spokenby(heard.keycode, heard.shift), Spoken{heard.text});
  }
}

// Walks to an entry; what is spoken there.
inline Spoken reach(Player& player, int entry) {
  Spoken spoken;
  while (player.game().menupos != entry) spoken = player.spokenby(key::down);
  return spoken;
}

inline Spoken perform(Player& player, int entry, int shift = modifier::none) {
  reach(player, entry);
  return player.spokenby(key::enter, shift);
}

// From the hideout through the creation menu and back; `changes` counts how often Enter changes
// each of the three bonuses.
inline Spoken recruit(Player& player, int slot, std::string name, std::array<int, 3> changes = {}) {
  perform(player, slot);
  player.answer(std::move(name));
  perform(player, 1);
  for (std::size_t bonus = 0; bonus < 3; ++bonus) {
    for (int left = changes.at(bonus); left > 0; --left) {
      perform(player, 3 + static_cast<int>(bonus));
    }
  }
  return perform(player, 6);
}

}  // namespace duskmarch
