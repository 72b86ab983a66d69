// The system's sound device, playing what the mixer renders.
#pragma once

#include <atomic>
#include <chrono>
#include <cstddef>
#include <memory>

#include "platform/sound/mixer.h"

namespace duskmarch {

// Every call may wait for the system's sound, for ever if that is frozen: only the thread of
// SoundOutput makes them, the destructor's among them. One device at a time.
class OutputDevice {
 public:
  virtual ~OutputDevice() = default;
  // Throws PlatformError when there is no device.
  virtual void open() = 0;
  // Nothing if it is not open.
  virtual void close() = 0;
  // Whether the device is gone, or has asked for nothing in `patience` calls of this.
  virtual bool lost(int patience) = 0;
};

// Each system defines this.
std::unique_ptr<OutputDevice> createoutputdevice(std::shared_ptr<Mixer> mixer);

// What a device that asks for samples is fed with.
class DeviceFeed {
 public:
  explicit DeviceFeed(std::shared_ptr<Mixer> mixer) : mixer_(std::move(mixer)) {}
  // The next frames, on the device's own thread.
  void fill(float* samples, std::size_t frames) noexcept;

  // These two on the thread that keeps the device: the device has been opened anew; whether it has
  // asked for nothing in `patience` calls of this.
  void opened() { quietcalls_ = 0; }
  bool quiet(int patience);

 private:
  std::shared_ptr<Mixer> mixer_;
  std::atomic<unsigned> ticks_ = 0;  // blocks that the device asked for
  unsigned seenticks_ = 0;
  int quietcalls_ = 0;
  std::chrono::steady_clock::time_point lastfill_;  // the device's thread's own
};

}  // namespace duskmarch
