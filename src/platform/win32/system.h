// The clock, the voice, JAWS and the music of the window's system.
#pragma once

#include <filesystem>
#include <memory>

#include "platform/win32/window.h"
#include "platform/windowsystem.h"

namespace duskmarch {

class Win32System : public WindowSystem {
 public:
  // `window` and `folders` must outlive it.
  Win32System(Win32Window& window, const GameFolders& folders);

  std::uint32_t secondssincemidnight() const override;
  std::unique_ptr<MusicGraph> createmusic(const std::filesystem::path& file) override;
  // As far as the system tells: by the flag that readers set, or because somebody listens to UI
  // Automation.
  bool readerattached() const override;
  void end() override { window_.end(); }

 private:
  std::shared_ptr<Voice> makevoice(SpeechLog log) override;
  std::unique_ptr<LosableSpeech> makespeech(SpeechLog log) override;

  Win32Window& window_;
};

}  // namespace duskmarch
