// The window's title, by which some screen readers are told.
#pragma once

#include <string_view>

#include "game.h"

namespace duskmarch {

// Sets the window title.
inline void settitle(Game& game, std::string_view title) {
  game.caption = title;
  game.desktop.window.settitle(title);
}

}  // namespace duskmarch
