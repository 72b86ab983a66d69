// The voice of Windows, which sounds by itself.
#pragma once

#include <memory>
#include <string_view>

#include "platform/desktop.h"
#include "platform/sound/mixer.h"
#include "platform/voice/speechlog.h"
#include "platform/win32/deskthread.h"

namespace duskmarch {

// All talk with the voice is on a thread of its own, which says what was asked for last: however
// slow the voice is, no call waits. A voice that has gone is made again for the next text.
class SapiVoice final : public Voice {
 public:
  // `mixer` is told while the voice speaks. Throws PlatformError when the system knows no voice.
  SapiVoice(std::shared_ptr<Mixer> mixer, SpeechLog log);
  ~SapiVoice() override;

  void setrate(int rate) override;
  void speak(std::string_view text) override;
  void speakafter(std::string_view text) override;
  void hush() override { speak({}); }

 private:
  struct Orders;
  class Clerk;

  DeskThread<Orders> thread_;
};

}  // namespace duskmarch
