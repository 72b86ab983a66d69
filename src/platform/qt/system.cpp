#include "platform/qt/system.h"

#include <QTime>
#include <system_error>
#include <utility>

#include "debuglog.h"
#include "platform/posix/sound/decodedmusic.h"
#include "platform/sound/mixedsounds.h"
#include "platform/voice/engines.h"
#include "platform/voice/sharedvoice.h"
#include "platform/voice/steadyspeech.h"

namespace duskmarch {

namespace {

// What goes wrong with speech after the call has returned is logged like what goes wrong in it.
constexpr auto speecherror = "error in sayit: ";

// A bundle brings the languages of its voice.
std::filesystem::path voicedata(const std::filesystem::path& program) {
  const std::filesystem::path brought = program / "lib";
  std::error_code ignored;
  return std::filesystem::is_directory(brought / "espeak-ng-data", ignored)
             ? brought
             : std::filesystem::path();
}

}  // namespace

QtSystem::QtSystem(QtWindow& window, const GameFolders& folders)
    : window_(window), folders_(folders), output_(log()) {
  output_.mixer()->addsource(voicestream_);
}

std::uint32_t QtSystem::secondssincemidnight() const {
  return static_cast<std::uint32_t>(QTime::currentTime().msecsSinceStartOfDay() / 1000);
}

std::unique_ptr<Voice> QtSystem::createvoice() {
  voice_ = createespeakvoice(voicestream_, log(speecherror), voicedata(folders_.program()));
  return std::make_unique<SharedVoice>(voice_);
}

std::unique_ptr<JawsApi> QtSystem::createjaws() {
  const auto makeservice = [this] { return createspeechservice(log(speecherror)); };
  return std::make_unique<SteadySpeech>(makeservice, voice_, log(speecherror));
}

std::unique_ptr<SoundDevice> QtSystem::opensound() {
  output_.start();
  return std::make_unique<MixedSounds>(output_.mixer());
}

std::unique_ptr<MusicGraph> QtSystem::createmusic(const std::filesystem::path& file) {
  return std::make_unique<DecodedMusic>(output_.mixer(), file);
}

std::function<void(std::string_view)> QtSystem::log(std::string_view prefix) {
  return [this, prefix = std::string(prefix)](std::string_view line) {
    const auto write = [folder = folders_.files(), whole = prefix + std::string(line)] {
      logline(folder, whole);
    };
    QMetaObject::invokeMethod(&window_, write, Qt::QueuedConnection);
  };
}

}  // namespace duskmarch
