// The program's sound output: one mixer, and a device that plays it whenever there is one.
#pragma once

#include <functional>
#include <memory>
#include <string_view>
#include <thread>

#include "platform/sound/mixer.h"

namespace duskmarch {

// What plays through it (MixedSounds, DecodedMusic, the voice's stream) shares the mixer, which
// works, unheard, before start() and after this is gone. Keep one SoundOutput at a time.
//
// A device that is lost is noticed and opened again in the background, as often as it takes; no
// call to the mixer ever waits for it.
class SoundOutput {
 public:
  // `log` gets one line whenever the device is lost. It is called on a thread of its own, and not
  // any more once this is destroyed.
  explicit SoundOutput(std::function<void(std::string_view)> log);
  SoundOutput(const SoundOutput&) = delete;
  SoundOutput& operator=(const SoundOutput&) = delete;
  // Closes the device; gives up after 0.3 seconds on one that does not answer.
  ~SoundOutput();

  // Opens the system's device, once. Throws PlatformError when there is none, or when it does not
  // answer within 3 seconds.
  void start();

  const std::shared_ptr<Mixer>& mixer() const { return mixer_; }

 private:
  struct Keeper;

  std::shared_ptr<Mixer> mixer_;
  std::shared_ptr<Keeper> keeper_;
  std::thread thread_;
};

}  // namespace duskmarch
