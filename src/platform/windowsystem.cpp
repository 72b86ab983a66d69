#include "platform/windowsystem.h"

#include <string>
#include <utility>

#include "debuglog.h"
#include "platform/sound/mixedsounds.h"
#include "platform/voice/sharedvoice.h"
#include "platform/voice/steadyspeech.h"

namespace duskmarch {

namespace {

// What goes wrong with speech after the call has returned is logged like what goes wrong in it.
constexpr auto speecherror = "error in sayit: ";

}  // namespace

WindowSystem::WindowSystem(const GameFolders& folders, Post post)
    : folders_(folders), post_(std::move(post)), output_(log()) {}

std::unique_ptr<Voice> WindowSystem::createvoice() {
  voice_ = makevoice(log(speecherror));
  return std::make_unique<SharedVoice>(voice_);
}

std::unique_ptr<JawsApi> WindowSystem::createjaws() {
  const auto make = [this] { return makespeech(log(speecherror)); };
  return std::make_unique<SteadySpeech>(make, voice_, log(speecherror));
}

std::unique_ptr<SoundDevice> WindowSystem::opensound() {
  output_.start();
  return std::make_unique<MixedSounds>(output_.mixer());
}

SpeechLog WindowSystem::log(std::string_view prefix) {
  return [this, prefix = std::string(prefix)](std::string_view line) {
    post_([folder = folders_.files(), whole = prefix + std::string(line)] {
      logline(folder, whole);
    });
  };
}

}  // namespace duskmarch
