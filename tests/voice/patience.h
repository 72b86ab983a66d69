// Waiting for something that other threads bring about.
#pragma once

#include <chrono>
#include <thread>

namespace duskmarch {

// Until `happened()` or for longer than any machine needs; what it was in the end.
template <class Condition>
bool eventually(Condition happened) {
  const auto limit = std::chrono::steady_clock::now() + std::chrono::seconds(60);
  while (!happened()) {
    if (std::chrono::steady_clock::now() > limit) return false;
    std::this_thread::yield();
  }
  return true;
}

}  // namespace duskmarch
