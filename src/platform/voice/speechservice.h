// The speech service as a screen reader: what comes is said after the rest, a key cuts it off.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/voice/losablespeech.h"
#include "platform/voice/speechlog.h"

namespace duskmarch {

// All talk with the service is on a thread of its own, which is left behind when the service lets
// it hang. When the service comes back, what had not been said is said.
class SpeechService final : public LosableSpeech {
 public:
  explicit SpeechService(SpeechLog log);
  // Returns within a second whatever the service does.
  ~SpeechService() override;

  void saystring(std::string_view text) override;
  void interrupt() override;
  std::optional<Clock::time_point> stucksince() override;
  std::vector<std::string> giveup() override;
  bool lost() override;

 private:
  struct Desk;
  class Clerk;

  std::shared_ptr<Desk> desk_;
};

}  // namespace duskmarch
