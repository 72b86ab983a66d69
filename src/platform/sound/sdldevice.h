// The system's sound device through SDL, playing what the mixer renders.
#pragma once

#include <atomic>
#include <chrono>
#include <cstdint>
#include <memory>
#include <string>

#include "platform/sound/mixer.h"

namespace duskmarch {

// open(), lost() and close() wait for the sound server, for ever if it is frozen: only the thread
// of SoundOutput calls them. One device at a time.
class SdlDevice {
 public:
  explicit SdlDevice(std::shared_ptr<Mixer> mixer);
  SdlDevice(const SdlDevice&) = delete;
  SdlDevice& operator=(const SdlDevice&) = delete;
  ~SdlDevice();

  // Throws PlatformError when there is no device. Once one was opened, always the same driver is
  // tried: another might take the hardware from a sound server that is just being restarted.
  void open();
  void close();
  // Whether the device is gone, or has asked for nothing in `patience` calls of this.
  bool lost(int patience);

 private:
  void fill(float* samples, std::size_t frames) noexcept;

  std::shared_ptr<Mixer> mixer_;
  std::uint32_t device_ = 0;
  std::string driver_;
  std::atomic<unsigned> ticks_ = 0;  // blocks that the device asked for
  unsigned seenticks_ = 0;
  int quietcalls_ = 0;
  // The audio thread's own.
  std::chrono::steady_clock::time_point lastfill_;
};

}  // namespace duskmarch
