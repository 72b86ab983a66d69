#include "platform/sound/outputdevice.h"

namespace duskmarch {
namespace {

constexpr std::chrono::seconds longestpause{1};

std::size_t framesin(std::chrono::steady_clock::duration time) {
  return static_cast<std::size_t>(std::chrono::duration<double>(time).count() * mixrate);
}

}  // namespace

void DeviceFeed::fill(float* samples, std::size_t frames) noexcept {
  const auto now = std::chrono::steady_clock::now();
  const bool first = ticks_.fetch_add(1, std::memory_order_relaxed) == 0;
  // Effects that were started while the device was away must not come all at once now.
  if (!first && now - lastfill_ > longestpause) mixer_->skip(framesin(now - lastfill_));
  lastfill_ = now;
  mixer_->render(samples, frames);
}

bool DeviceFeed::quiet(int patience) {
  const unsigned ticks = ticks_.load(std::memory_order_relaxed);
  quietcalls_ = ticks == seenticks_ ? quietcalls_ + 1 : 0;
  seenticks_ = ticks;
  return quietcalls_ >= patience;
}

}  // namespace duskmarch
