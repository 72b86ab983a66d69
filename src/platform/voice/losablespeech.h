// A speech engine outside the game, which may go away and come back.
#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <vector>

#include "platform/desktop.h"

namespace duskmarch {

// It speaks on a thread of its own, where it also tries to come back by itself once it is away. No
// call waits for that thread.
class LosableSpeech : public JawsApi {
 public:
  using Clock = std::chrono::steady_clock;

  // Since when it has got nowhere with what it was given; nothing while it gets on, or rests.
  virtual std::optional<Clock::time_point> stucksince() = 0;
  // Gives it up: takes back, oldest first, what it has not said and does not say any more. One that
  // has just got on is not given up.
  virtual std::vector<std::string> giveup() = 0;
  // Whether it was given up and is not back yet.
  virtual bool lost() = 0;
};

}  // namespace duskmarch
