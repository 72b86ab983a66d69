// eSpeak NG, of which a process has one: text in, samples out, one text at a time.
#pragma once

#include <cstdint>
#include <mutex>
#include <string>

#include "platform/voice/resampler.h"

namespace duskmarch {

class Espeak {
 public:
  // Sets the synthesizer up at the first call. Throws PlatformError when there is none; the next
  // call tries again.
  static Espeak& instance();

  int samplerate() const { return samplerate_; }
  // Returns when all of `text` has gone to `sink`, or when that wants no more; waits for a text
  // that another thread has said. `text` is plain UTF-8 without control characters. Throws
  // PlatformError.
  void say(const std::string& text, int wordsaminute, const SampleSink<std::int16_t>& sink);

 private:
  Espeak();

  std::mutex saying_;
  int samplerate_ = 0;
};

}  // namespace duskmarch
