// JAWS, by the interface that it has for other programs.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/voice/losablespeech.h"
#include "platform/voice/speechlog.h"
#include "platform/win32/deskthread.h"

namespace duskmarch {

// All talk with JAWS is on a thread of its own. While JAWS is away it is asked again, twice a
// second, whether it is back; what had not been said by then is said.
class JawsSpeech final : public LosableSpeech {
 public:
  // Throws PlatformError when JAWS is not installed.
  explicit JawsSpeech(SpeechLog log);
  ~JawsSpeech() override;

  void saystring(std::string_view text) override;
  void interrupt() override {}  // JAWS sees the keys itself
  std::optional<Clock::time_point> stucksince() override;
  std::vector<std::string> giveup() override;
  bool lost() override;

 private:
  struct Orders;
  class Clerk;

  std::shared_ptr<Orders> orders_;
  DeskThread<Orders> thread_;
};

}  // namespace duskmarch
