// Something that adds its own samples to what the sound device plays.
#pragma once

#include <cstddef>

namespace duskmarch {

class AudioSource {
 public:
  virtual ~AudioSource() = default;
  // Adds `frames` frames of interleaved stereo at mixrate to `samples`. Runs on the audio thread:
  // it must not wait, allocate or free.
  virtual void mix(float* samples, std::size_t frames) noexcept = 0;
  // Whether what it mixes next is speech, under which cues are lowered. On the audio thread too.
  virtual bool speaks() const noexcept { return false; }
};

inline constexpr int mixrate = 48000;

}  // namespace duskmarch
