// The samples in the bytes of a WAV file.
#pragma once

#include <cstddef>
#include <span>
#include <vector>

namespace duskmarch {

struct Wave {
  std::size_t channels = 1;    // 1 or 2
  int rate = 0;                // frames a second, 4000 to 192000
  std::vector<float> samples;  // interleaved, full scale is 1
};

// Reads integers of 8 to 32 bits, floating point of 32 and 64 bits, and telephone's A-law and
// mu-law; what is left of a frame at the end is dropped. Throws PlatformError for anything else,
// and for a file that is cut short.
Wave readwave(std::span<const std::byte> bytes);

}  // namespace duskmarch
