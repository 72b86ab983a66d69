#include "platform/frontend/heldkeys.h"

namespace duskmarch {

namespace {

// Programs that press keys for their user leave 6 milliseconds and more.
constexpr std::uint64_t tooquick = 5;

}  // namespace

void HeldKeys::released(std::uint32_t key, std::uint64_t time) {
  lastreleased_ = key;
  releasetime_ = time;
}

bool HeldKeys::repeats(std::uint32_t key, std::uint64_t time, bool flagged) const {
  // Keys without a time come from programs that press them for their user.
  return flagged || (time != 0 && key == lastreleased_ && time - releasetime_ < tooquick);
}

}  // namespace duskmarch
