#include "platform/qt/system.h"

#include <QTime>
#include <system_error>
#include <utility>

#include "platform/posix/sound/decodedmusic.h"
#include "platform/voice/engines.h"

namespace duskmarch {

namespace {

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
    : WindowSystem(folders,
                   [&window](std::function<void()> call) {
                     QMetaObject::invokeMethod(&window, std::move(call), Qt::QueuedConnection);
                   }),
      window_(window) {
  mixer()->addsource(voicestream_);
}

std::uint32_t QtSystem::secondssincemidnight() const {
  return static_cast<std::uint32_t>(QTime::currentTime().msecsSinceStartOfDay() / 1000);
}

std::unique_ptr<MusicGraph> QtSystem::createmusic(const std::filesystem::path& file) {
  return std::make_unique<DecodedMusic>(mixer(), file);
}

std::shared_ptr<Voice> QtSystem::makevoice(SpeechLog log) {
  return createespeakvoice(voicestream_, std::move(log), voicedata(programfolder()));
}

std::unique_ptr<LosableSpeech> QtSystem::makespeech(SpeechLog log) {
  return createspeechservice(std::move(log));
}

}  // namespace duskmarch
