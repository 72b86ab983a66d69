// What is known of a key: where it acts, what it does, and the line of the help page that tells of
// it.
#pragma once

#include <string_view>

#include "game.h"

namespace duskmarch {

// The screens on which a key acts, or is told of: one bit each, by `menuname`.
namespace onscreen {
inline constexpr unsigned map = 1U << screen::map;
inline constexpr unsigned mainmenu = 1U << screen::mainmenu;
inline constexpr unsigned creation = 1U << screen::creation;
inline constexpr unsigned orders = 1U << screen::options;
inline constexpr unsigned upgrades = 1U << screen::upgrades;
inline constexpr unsigned hideout = 1U << screen::hideout;
inline constexpr unsigned mission = map | orders;
inline constexpr unsigned menus = mainmenu | creation | orders | upgrades | hideout;
inline constexpr unsigned all = map | menus;
}  // namespace onscreen

struct PlayerKey {
  std::string_view keys;  // as players call them
  unsigned told = 0;      // the screens whose help tells of it
  std::string_view does;
  // For the keys beyond the rules; the others are the keyboard's.
  int code = 0;
  unsigned acts = 0;  // the screens on which it acts
  void (*act)(Game& game, KeyPress press) = nullptr;
};

}  // namespace duskmarch
