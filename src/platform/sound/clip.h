// A decoded sound.
#pragma once

#include <cstddef>
#include <vector>

namespace duskmarch {

// Interleaved samples at mixrate, mono or stereo.
struct Clip {
  std::size_t channels = 1;
  std::vector<float> samples;
  std::size_t frames() const { return samples.size() / channels; }
};

}  // namespace duskmarch
