// A thread that works for the game in what may hang: an object of the system, or another program's.
// Nobody ever waits for it for long; at the end it is left behind if need be.
#pragma once

#include <chrono>
#include <condition_variable>
#include <memory>
#include <mutex>
#include <system_error>
#include <thread>
#include <utility>

#include "platform/desktop.h"
#include "platform/win32/com.h"

namespace duskmarch {

// What the game and such a thread share. Whatever a desk adds is guarded by its mutex too.
struct Desk {
  std::mutex mutex;
  std::condition_variable wake;
  bool ending = false;  // the game wants nothing any more
  bool left = false;    // the thread has gone
};

template <class Kind>
class DeskThread {
 public:
  // `serve(desk)` is run with the right to use objects, and returns soon after `desk->ending` is
  // set. Of the game it may use no more than the desk holds. The end waits for it for `farewell`.
  template <class Serve>
  DeskThread(std::shared_ptr<Kind> desk, Serve serve, std::chrono::milliseconds farewell)
      : desk_(std::move(desk)), farewell_(farewell) {
    try {
      thread_ = std::thread([desk = desk_, serve] {
        {
          const ComThread com;
          serve(desk);
        }
        const std::lock_guard guard(desk->mutex);
        desk->left = true;
        desk->wake.notify_all();
      });
    } catch (const std::system_error& error) {
      throw PlatformError(std::string("no thread can be started: ") + error.what());
    }
  }
  DeskThread(const DeskThread&) = delete;
  DeskThread& operator=(const DeskThread&) = delete;
  ~DeskThread() {
    std::unique_lock lock(desk_->mutex);
    desk_->ending = true;
    desk_->wake.notify_all();
    const bool left = desk_->wake.wait_for(lock, farewell_, [this] { return desk_->left; });
    lock.unlock();
    // One that is just ending is not detached: with mingw's threads, the next one to be started
    // then finds nothing to run, now and then, and crashes.
    if (left) {
      thread_.join();
    } else {
      thread_.detach();
    }
  }

  // Changes what is on the desk, and tells the thread.
  template <class Change>
  void order(Change change) {
    const std::lock_guard guard(desk_->mutex);
    change(*desk_);
    desk_->wake.notify_all();
  }

 private:
  std::shared_ptr<Kind> desk_;
  std::chrono::milliseconds farewell_;
  std::thread thread_;
};

}  // namespace duskmarch
