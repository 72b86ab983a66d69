// The sound device of the game on the mixer's slots.
#pragma once

#include <memory>

#include "platform/desktop.h"
#include "platform/sound/clipcache.h"
#include "platform/sound/mixedcues.h"
#include "platform/sound/mixer.h"

namespace duskmarch {

class MixedSounds : public SoundDevice {
 public:
  explicit MixedSounds(std::shared_ptr<Mixer> mixer);
  void load(int buffer, std::string_view name, const std::filesystem::path& file) override;
  void setvolume(int buffer, int volume) override;
  void setpan(int buffer, int pan) override;
  void play(int buffer, bool loop) override;
  CueDevice& cues() override { return cues_; }

 private:
  std::shared_ptr<Mixer> mixer_;
  ClipCache clips_;
  MixedCues cues_;
};

}  // namespace duskmarch
