// How loud a volume and a pan make each side.
#pragma once

#include <algorithm>
#include <cmath>

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

}  // namespace duskmarch
