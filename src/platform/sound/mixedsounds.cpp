#include "platform/sound/mixedsounds.h"

#include <string>

namespace duskmarch {

MixedSounds::MixedSounds(std::shared_ptr<Mixer> mixer) : mixer_(std::move(mixer)), cues_(mixer_) {}

void MixedSounds::load(int buffer, std::string_view name, const std::filesystem::path& file) {
  try {
    mixer_->load(buffer, clips_.clip(file));
  } catch (const std::exception& error) {
    throw PlatformError(std::string(name) + ": " + error.what());
  }
}

void MixedSounds::setvolume(int buffer, int volume) {
  mixer_->setvolume(buffer, volume);
}

void MixedSounds::setpan(int buffer, int pan) {
  mixer_->setpan(buffer, pan);
}

void MixedSounds::play(int buffer, bool loop) {
  mixer_->play(buffer, loop);
}

}  // namespace duskmarch
