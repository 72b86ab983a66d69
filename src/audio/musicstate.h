// What the music players hold: two of them, numbered 0 and 1.
#pragma once

#include <array>
#include <memory>
#include <string>

#include "platform/desktop.h"

namespace duskmarch {

inline constexpr int musicplayers = 2;

struct Music {
  std::array<std::unique_ptr<MusicGraph>, musicplayers> players;  // null until a file is loaded
  std::array<std::string, musicplayers> mp3files;                 // what was last loaded
  std::array<int, musicplayers> mp3volumes{};                     // and at which percentage
  int musicoff = 0;     // 1: nothing is loaded, and player 0 does not start
  int musicvolume = 0;  // the percentage where none is given
};

}  // namespace duskmarch
