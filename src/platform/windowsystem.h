// What the windows' systems do alike: the game's folders, its log, and the engines that share its
// sound and its voice.
#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <string_view>

#include "platform/desktop.h"
#include "platform/gamefolders.h"
#include "platform/sound/soundoutput.h"
#include "platform/voice/losablespeech.h"
#include "platform/voice/speechlog.h"

namespace duskmarch {

class WindowSystem : public System {
 public:
  std::filesystem::path programfolder() const override { return folders_.program(); }
  std::filesystem::path filesfolder() const override { return folders_.files(); }
  bool alreadyrunning() const override { return folders_.inuse(); }
  std::unique_ptr<Voice> createvoice() override;
  std::unique_ptr<JawsApi> createjaws() override;
  std::unique_ptr<SoundDevice> opensound() override;

 protected:
  // Has the window make a call when it next looks for events; may be used on any thread.
  using Post = std::function<void(std::function<void()> call)>;

  // `folders` must outlive it.
  WindowSystem(const GameFolders& folders, Post post);

  const std::shared_ptr<Mixer>& mixer() const { return output_.mixer(); }

 private:
  // The game's own voice, and the engine of mode 3; both may throw PlatformError.
  virtual std::shared_ptr<Voice> makevoice(SpeechLog log) = 0;
  virtual std::unique_ptr<LosableSpeech> makespeech(SpeechLog log) = 0;
  // Writes lines to the log, each after `prefix`, from whatever thread.
  SpeechLog log(std::string_view prefix = {});

  const GameFolders& folders_;
  const Post post_;
  SoundOutput output_;
  std::shared_ptr<Voice> voice_;  // the game's, which stands in for the engine of mode 3
};

}  // namespace duskmarch
