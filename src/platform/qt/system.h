// The game's folders, its clock, and the engines that it can start.
#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <string_view>

#include "platform/desktop.h"
#include "platform/gamefolders.h"
#include "platform/qt/window.h"
#include "platform/sound/soundoutput.h"
#include "platform/voice/speechstream.h"

namespace duskmarch {

class QtSystem : public System {
 public:
  // `folders` must outlive it.
  QtSystem(QtWindow& window, const GameFolders& folders);

  std::filesystem::path programfolder() const override { return folders_.program(); }
  std::filesystem::path filesfolder() const override { return folders_.files(); }
  bool alreadyrunning() const override { return folders_.inuse(); }
  std::uint32_t secondssincemidnight() const override;
  std::unique_ptr<Voice> createvoice() override;
  std::unique_ptr<JawsApi> createjaws() override;
  std::unique_ptr<SoundDevice> opensound() override;
  std::unique_ptr<MusicGraph> createmusic(const std::filesystem::path& file) override;
  bool readerattached() const override { return window_.readerattached(); }
  void end() override { window_.end(); }

 private:
  // Writes lines to the log, each after `prefix`, from whatever thread.
  std::function<void(std::string_view)> log(std::string_view prefix = {});

  QtWindow& window_;
  const GameFolders& folders_;
  SoundOutput output_;
  std::shared_ptr<Voice> voice_;  // the game's, which stands in for the speech service
  std::shared_ptr<SpeechStream> voicestream_ = std::make_shared<SpeechStream>();
};

}  // namespace duskmarch
