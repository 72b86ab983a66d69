#include "platform/qt/system.h"

#include <QCoreApplication>
#include <QTime>

#include "debuglog.h"
#include "platform/qt/text.h"
#include "platform/sound/decodedmusic.h"
#include "platform/sound/mixedsounds.h"

namespace duskmarch {

namespace {

// What goes wrong with speech after the call has returned is logged like what goes wrong in it.
constexpr auto speecherror = "error in sayit: ";

std::filesystem::path executablefolder() {
  return fromqt(QCoreApplication::applicationDirPath());
}

}  // namespace

QtSystem::QtSystem(QtWindow& window) : window_(window), output_(log()) {
  output_.mixer()->addsource(voicestream_);
}

std::filesystem::path QtSystem::programfolder() const {
  return executablefolder();
}

std::uint32_t QtSystem::secondssincemidnight() const {
  return static_cast<std::uint32_t>(QTime::currentTime().msecsSinceStartOfDay() / 1000);
}

std::unique_ptr<Voice> QtSystem::createvoice() {
  return createespeakvoice(voicestream_, log(speecherror));
}

std::unique_ptr<JawsApi> QtSystem::createjaws() {
  return createspeechservice(log(speecherror));
}

std::unique_ptr<SoundDevice> QtSystem::opensound() {
  output_.start();
  return std::make_unique<MixedSounds>(output_.mixer());
}

std::unique_ptr<MusicGraph> QtSystem::createmusic(const std::filesystem::path& file) {
  return std::make_unique<DecodedMusic>(output_.mixer(), file);
}

std::function<void(std::string_view)> QtSystem::log(std::string_view prefix) {
  return [&window = window_, prefix = std::string(prefix)](std::string_view line) {
    const auto write = [whole = prefix + std::string(line)] { logline(executablefolder(), whole); };
    QMetaObject::invokeMethod(&window, write, Qt::QueuedConnection);
  };
}

}  // namespace duskmarch
