#include "platform/win32/system.h"

#include <utility>

#include <windows.h>

#include "platform/win32/screenreader.h"
#include "platform/win32/sound/directmusic.h"
#include "platform/win32/voice/jawsspeech.h"
#include "platform/win32/voice/sapivoice.h"

namespace duskmarch {

Win32System::Win32System(Win32Window& window, const GameFolders& folders)
    : WindowSystem(folders,
                   [&window](std::function<void()> call) { window.post(std::move(call)); }),
      window_(window) {}

std::uint32_t Win32System::secondssincemidnight() const {
  SYSTEMTIME now;
  GetLocalTime(&now);
  return (now.wHour * 60U + now.wMinute) * 60U + now.wSecond;
}

std::unique_ptr<MusicGraph> Win32System::createmusic(const std::filesystem::path& file) {
  return std::make_unique<DirectMusic>(file);
}

bool Win32System::readerattached() const {
  return readerlistens();
}

std::shared_ptr<Voice> Win32System::makevoice(SpeechLog log) {
  return std::make_shared<SapiVoice>(mixer(), std::move(log));
}

std::unique_ptr<LosableSpeech> Win32System::makespeech(SpeechLog log) {
  return std::make_unique<JawsSpeech>(std::move(log));
}

}  // namespace duskmarch
