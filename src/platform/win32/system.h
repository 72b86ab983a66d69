// The game's folders, its clock, and the engines that it can start.
#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <string_view>

#include "platform/desktop.h"
#include "platform/gamefolders.h"
#include "platform/sound/soundoutput.h"
#include "platform/win32/window.h"

namespace duskmarch {

class Win32System : public System {
 public:
  // `folders` must outlive it.
  Win32System(Win32Window& window, const GameFolders& folders);

  std::filesystem::path programfolder() const override { return folders_.program(); }
  std::filesystem::path filesfolder() const override { return folders_.files(); }
  bool alreadyrunning() const override { return folders_.inuse(); }
  std::uint32_t secondssincemidnight() const override;
  std::unique_ptr<Voice> createvoice() override;
  std::unique_ptr<JawsApi> createjaws() override;
  std::unique_ptr<SoundDevice> opensound() override;
  std::unique_ptr<MusicGraph> createmusic(const std::filesystem::path& file) override;
  // As far as the system tells: by the flag that readers set, or because somebody listens to UI
  // Automation.
  bool readerattached() const override;
  void end() override { window_.end(); }

 private:
  // Writes lines to the log, each after `prefix`, from whatever thread.
  std::function<void(std::string_view)> log(std::string_view prefix = {});

  Win32Window& window_;
  const GameFolders& folders_;
  SoundOutput output_;
  std::shared_ptr<Voice> voice_;  // the game's, which stands in for JAWS
};

}  // namespace duskmarch
