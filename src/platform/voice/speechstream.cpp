#include "platform/voice/speechstream.h"

#include <algorithm>
#include <cmath>

namespace duskmarch {
namespace {

// From one frame to the next: what is left of a cut-off sound's last sample is inaudible after two
// milliseconds. Stopping dead would click with every key.
constexpr float fading = 0.9F;
constexpr float inaudible = 1e-5F;

}  // namespace

SpeechStream::SpeechStream() : ring_(ringsize) {}

SpeechStream::Turn SpeechStream::cut() {
  const std::lock_guard guard(writing_);
  dropped_ = written_.load();
  return ++turn_;
}

std::optional<std::size_t> SpeechStream::offer(Turn turn, std::span<const float> samples) {
  const std::lock_guard guard(writing_);
  if (!current(turn)) return std::nullopt;
  const std::uint64_t written = written_;
  const std::uint64_t mixed = mixed_;
  const std::uint64_t limit =
      std::min(std::max<std::uint64_t>(mixed, dropped_) + ahead, mixed + ringsize);
  const std::size_t room = limit > written ? static_cast<std::size_t>(limit - written) : 0;
  const std::size_t taken = std::min(room, samples.size());
  for (std::size_t i = 0; i < taken; ++i) ring_[(written + i) % ringsize] = samples[i];
  written_ = written + taken;
  return taken;
}

bool SpeechStream::drained() const noexcept {
  const std::uint64_t dropped = dropped_;
  const std::uint64_t mixed = mixed_;
  return std::max(mixed, dropped) >= written_;
}

void SpeechStream::mix(float* samples, std::size_t frames) noexcept {
  const std::uint64_t dropped = dropped_;
  const std::uint64_t end = written_;
  std::uint64_t at = mixed_;
  if (dropped > at) {
    at = dropped;
    fade_ = last_;
  }
  for (std::size_t frame = 0; frame < frames; ++frame) {
    fade_ = std::abs(fade_) > inaudible ? fade_ * fading : 0;
    last_ = fade_;
    if (at < end) last_ += ring_[at++ % ringsize];
    samples[2 * frame] += last_;
    samples[2 * frame + 1] += last_;
  }
  mixed_ = at;
}

}  // namespace duskmarch
