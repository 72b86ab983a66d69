// The clock, the voice, the speech service and the music of the window's system.
#pragma once

#include <filesystem>
#include <memory>

#include "platform/qt/window.h"
#include "platform/voice/speechstream.h"
#include "platform/windowsystem.h"

namespace duskmarch {

class QtSystem : public WindowSystem {
 public:
  // `window` and `folders` must outlive it.
  QtSystem(QtWindow& window, const GameFolders& folders);

  std::uint32_t secondssincemidnight() const override;
  std::unique_ptr<MusicGraph> createmusic(const std::filesystem::path& file) override;
  bool readerattached() const override { return window_.readerattached(); }
  void end() override { window_.end(); }

 private:
  std::shared_ptr<Voice> makevoice(SpeechLog log) override;
  std::unique_ptr<LosableSpeech> makespeech(SpeechLog log) override;

  QtWindow& window_;
  std::shared_ptr<SpeechStream> voicestream_ = std::make_shared<SpeechStream>();
};

}  // namespace duskmarch
