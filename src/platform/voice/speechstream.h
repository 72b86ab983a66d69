// The voice as the mixer hears it: a bounded queue of samples, written ahead by the synthesizer and
// emptied at once when the voice is cut off.
#pragma once

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <mutex>
#include <optional>
#include <span>
#include <vector>

#include "platform/sound/audiosource.h"

namespace duskmarch {

class SpeechStream final : public AudioSource {
 public:
  // What is said from one cut to the next.
  using Turn = std::uint64_t;

  SpeechStream();

  // Silences the stream at once: nothing of earlier turns is mixed any more.
  Turn cut();
  // Whether `turn` has not been cut off.
  bool current(Turn turn) const noexcept { return turn_.load() == turn; }
  // Queues as many of `samples`, mono at mixrate, as there is room for and tells how many; nothing
  // when `turn` has been cut off.
  std::optional<std::size_t> offer(Turn turn, std::span<const float> samples);
  // Whether everything queued has been mixed.
  bool drained() const noexcept;

  void mix(float* samples, std::size_t frames) noexcept override;
  bool speaks() const noexcept override { return !drained(); }

 private:
  // Half a second is kept ahead. The ring holds more than that: what was cut off stays in it until
  // the next mix, and the new text must not wait for that.
  static constexpr std::size_t ahead = mixrate / 2;
  static constexpr std::size_t ringsize = 1 << 17;

  std::mutex writing_;  // never taken by mix()
  std::atomic<Turn> turn_ = 0;
  std::vector<float> ring_;
  // Counted since the beginning; a count's place in the ring is its remainder by ringsize.
  std::atomic<std::uint64_t> written_ = 0;
  std::atomic<std::uint64_t> dropped_ = 0;  // what lies before was cut off
  std::atomic<std::uint64_t> mixed_ = 0;    // what lies before may be overwritten
  // The audio thread's own: what is left of a sound cut off, and the last sample mixed.
  float fade_ = 0;
  float last_ = 0;
};

}  // namespace duskmarch
