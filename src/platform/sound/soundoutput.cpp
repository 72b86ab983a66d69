#include "platform/sound/soundoutput.h"

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <string>

#include "platform/desktop.h"
#include "platform/sound/outputdevice.h"

namespace duskmarch {
namespace {

using namespace std::chrono_literals;

constexpr auto openlimit = 3s;
constexpr auto closelimit = 300ms;
constexpr auto watchinterval = 100ms;
constexpr int patience = 50;  // intervals; a sink that wakes up may take two seconds
constexpr auto retryinterval = 250ms;

}  // namespace

// What the thread that keeps the device shares with the rest. The thread owns a share of it, so
// that it may be left behind in a call that hangs.
struct SoundOutput::Keeper {
  std::mutex mutex;
  std::condition_variable changed;
  std::function<void(std::string_view)> log;
  bool opened = false;
  bool finished = false;
  bool ending = false;
  std::string error;

  void keep(const std::shared_ptr<Mixer>& mixer) {
    try {
      const std::unique_ptr<OutputDevice> device = createoutputdevice(mixer);
      device->open();
      set(opened);
      while (!endingwithin(watchinterval)) {
        mixer->tidy();
        if (!device->lost(patience)) continue;
        replace(*device);
        mixer->devicereplaced();
      }
    } catch (const std::exception& problem) {
      error = problem.what();
    }
    set(finished);
  }

  void replace(OutputDevice& device) {
    report("error in sound: the device is lost; it is opened again as soon as it answers.");
    device.close();
    while (!reopened(device) && !endingwithin(retryinterval)) {
    }
  }

  static bool reopened(OutputDevice& device) {
    try {
      device.open();
      return true;
    } catch (const PlatformError&) {
      return false;
    }
  }

  // Under the lock, so that nothing is logged any more once the end has been asked for.
  void report(std::string_view line) {
    const std::lock_guard guard(mutex);
    if (!ending && log) log(line);
  }

  void set(bool& flag) {
    {
      const std::lock_guard guard(mutex);
      flag = true;
    }
    changed.notify_all();
  }

  bool endingwithin(std::chrono::milliseconds time) {
    std::unique_lock lock(mutex);
    return changed.wait_for(lock, time, [this] { return ending; });
  }
};

SoundOutput::SoundOutput(std::function<void(std::string_view)> log)
    : mixer_(std::make_shared<Mixer>()), keeper_(std::make_shared<Keeper>()) {
  keeper_->log = std::move(log);
}

void SoundOutput::start() {
  thread_ = std::thread([keeper = keeper_, mixer = mixer_] { keeper->keep(mixer); });
  std::unique_lock lock(keeper_->mutex);
  keeper_->changed.wait_for(lock, openlimit,
                            [this] { return keeper_->opened || keeper_->finished; });
  if (keeper_->opened) return;
  throw PlatformError(keeper_->finished ? keeper_->error : "the sound device does not answer");
}

SoundOutput::~SoundOutput() {
  keeper_->set(keeper_->ending);
  if (!thread_.joinable()) return;
  std::unique_lock lock(keeper_->mutex);
  const bool finished =
      keeper_->changed.wait_for(lock, closelimit, [this] { return keeper_->finished; });
  lock.unlock();
  if (finished) {
    thread_.join();
  } else {
    thread_.detach();
  }
}

}  // namespace duskmarch
