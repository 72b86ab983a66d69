// eSpeak NG, of which a process has one: text in, samples out, one text at a time.
#pragma once

#include <cstdint>
#include <filesystem>
#include <mutex>
#include <string>
#include <vector>

#include "platform/voice/resampler.h"

namespace duskmarch {

struct NamedVoice {
  std::string name;  // fit for speaking
  std::string file;  // as the synthesizer finds it, perhaps with a variant
};

class Espeak {
 public:
  // Sets the synthesizer up at the first call. Throws PlatformError when there is none; the next
  // call tries again. `data` is the folder with the folder of its languages; empty: the system's.
  static Espeak& instance(const std::filesystem::path& data = {});

  int samplerate() const { return samplerate_; }
  // The default first, then those of the system's language, then English in every variant. Read
  // from the disk at the first call, which waits for a text that another thread has said.
  const std::vector<NamedVoice>& voices();
  // Returns when all of `text` has gone to `sink`, or when that wants no more; waits for a text
  // that another thread has said. `voice` is the file of one of the voices; where it is gone, the
  // default speaks. `text` is plain UTF-8 without control characters. Throws
  // PlatformError.
  void say(const std::string& text, int wordsaminute, const std::string& voice,
           const SampleSink<std::int16_t>& sink);

 private:
  explicit Espeak(const std::filesystem::path& data);

  void usevoice(const std::string& file);

  std::mutex saying_;
  int samplerate_ = 0;
  std::string voice_;  // the file of the one that speaks
  std::vector<NamedVoice> voices_;
};

}  // namespace duskmarch
