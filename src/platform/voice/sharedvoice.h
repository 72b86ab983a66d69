// The game's own voice in several hands.
#pragma once

#include <memory>
#include <string_view>
#include <utility>

#include "platform/desktop.h"

namespace duskmarch {

// What the game holds of a voice that its front end, or another engine, speaks by as well.
class SharedVoice final : public Voice {
 public:
  explicit SharedVoice(std::shared_ptr<Voice> voice) : voice_(std::move(voice)) {}

  void setrate(int rate) override { voice_->setrate(rate); }
  void speak(std::string_view text) override { voice_->speak(text); }
  void speakafter(std::string_view text) override { voice_->speakafter(text); }
  void hush() override { voice_->hush(); }
  std::vector<std::string> voicenames() override { return voice_->voicenames(); }
  bool setvoice(std::string_view name) override { return voice_->setvoice(name); }

 private:
  std::shared_ptr<Voice> voice_;
};

}  // namespace duskmarch
