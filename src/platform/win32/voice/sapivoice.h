// The voice of Windows, which sounds by itself.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/desktop.h"
#include "platform/sound/mixer.h"
#include "platform/voice/speechlog.h"
#include "platform/win32/deskthread.h"

namespace duskmarch {

// All talk with the voice is on a thread of its own, which says what was asked for last: however
// slow the voice is, only its making waits, a second at most. A voice that has gone is made again
// for the next text.
class SapiVoice final : public Voice {
 public:
  // Makes the system's object; throws PlatformError.
  using Make = std::function<ComPtr<IDispatch>()>;

  // `mixer` is told while the voice speaks. Throws PlatformError when the system has no voice:
  // knows none, or lists none. What takes longer to find out is taken on trust.
  SapiVoice(std::shared_ptr<Mixer> mixer, SpeechLog log);
  // The same with another object for the voice.
  SapiVoice(std::shared_ptr<Mixer> mixer, SpeechLog log, Make make);
  ~SapiVoice() override;

  void setrate(int rate) override;
  void speak(std::string_view text) override;
  void speakafter(std::string_view text) override;
  void hush() override { speak({}); }
  // Those that have been listed by now.
  std::vector<std::string> voicenames() override;
  // A name is taken on trust where there is no list yet.
  bool setvoice(std::string_view name) override;

 private:
  struct Orders;
  class Clerk;

  bool knownmute();

  std::shared_ptr<Orders> orders_;
  DeskThread<Orders> thread_;
};

}  // namespace duskmarch
