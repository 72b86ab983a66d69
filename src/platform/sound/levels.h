// Stereo levels: how loud a volume and a pan make each side, and mixing at them.
#pragma once

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace duskmarch {

struct Levels {
  float left = 1.0F;
  float right = 1.0F;
};

// `attenuation` in hundredths of a decibel: 0 is 1, -2000 a tenth.
inline float gain(int attenuation) {
  return static_cast<float>(std::pow(10.0, attenuation / 2000.0));
}

// The side away from `pan` loses |pan| hundredths of a decibel.
inline Levels levels(int volume, int pan) {
  return {gain(volume - std::max(pan, 0)), gain(volume + std::min(pan, 0))};
}

// `place` from -100 (left) to 100 (right): as it is in the middle, and equally loud everywhere.
inline Levels placed(int volume, int place) {
  const auto right = static_cast<float>(std::clamp(place, -100, 100) + 100) / 100;
  return {gain(volume) * std::sqrt(2 - right), gain(volume) * std::sqrt(right)};
}

// Adds mono or stereo samples to interleaved stereo; mono is heard on both sides.
inline void addframes(const float* from, std::size_t channels, Levels levels, float* to,
                      std::size_t frames) {
  for (std::size_t n = 0; n < frames; ++n) {
    to[2 * n] += from[n * channels] * levels.left;
    to[2 * n + 1] += from[n * channels + channels - 1] * levels.right;
  }
}

}  // namespace duskmarch
