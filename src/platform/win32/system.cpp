#include "platform/win32/system.h"

#include <string>
#include <utility>

#include <windows.h>

#include "debuglog.h"
#include "platform/sound/mixedsounds.h"
#include "platform/voice/sharedvoice.h"
#include "platform/voice/steadyspeech.h"
#include "platform/win32/screenreader.h"
#include "platform/win32/sound/directmusic.h"
#include "platform/win32/voice/jawsspeech.h"
#include "platform/win32/voice/sapivoice.h"

namespace duskmarch {

namespace {

// What goes wrong with speech after the call has returned is logged like what goes wrong in it.
constexpr auto speecherror = "error in sayit: ";

}  // namespace

Win32System::Win32System(Win32Window& window, const GameFolders& folders)
    : window_(window), folders_(folders), output_(log()) {}

std::uint32_t Win32System::secondssincemidnight() const {
  SYSTEMTIME now;
  GetLocalTime(&now);
  return (now.wHour * 60U + now.wMinute) * 60U + now.wSecond;
}

std::unique_ptr<Voice> Win32System::createvoice() {
  voice_ = std::make_shared<SapiVoice>(output_.mixer(), log(speecherror));
  return std::make_unique<SharedVoice>(voice_);
}

std::unique_ptr<JawsApi> Win32System::createjaws() {
  const auto makejaws = [this] { return std::make_unique<JawsSpeech>(log(speecherror)); };
  return std::make_unique<SteadySpeech>(makejaws, voice_, log(speecherror));
}

std::unique_ptr<SoundDevice> Win32System::opensound() {
  output_.start();
  return std::make_unique<MixedSounds>(output_.mixer());
}

std::unique_ptr<MusicGraph> Win32System::createmusic(const std::filesystem::path& file) {
  return std::make_unique<DirectMusic>(file);
}

bool Win32System::readerattached() const {
  return readerlistens();
}

std::function<void(std::string_view)> Win32System::log(std::string_view prefix) {
  return [this, prefix = std::string(prefix)](std::string_view line) {
    window_.post([folder = folders_.files(), whole = prefix + std::string(line)] {
      logline(folder, whole);
    });
  };
}

}  // namespace duskmarch
