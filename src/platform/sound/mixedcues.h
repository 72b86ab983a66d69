// Cues and ambience on the mixer's timed voices.
#pragma once

#include <functional>
#include <future>
#include <map>
#include <memory>
#include <string>
#include <thread>

#include "platform/desktop.h"
#include "platform/sound/mixer.h"

namespace duskmarch {

class MixedCues final : public CueDevice {
 public:
  explicit MixedCues(std::shared_ptr<Mixer> mixer);
  MixedCues(const MixedCues&) = delete;
  MixedCues& operator=(const MixedCues&) = delete;
  // Ends what sounds: nobody could end it after that.
  ~MixedCues() override;

  void playcues(std::span<const Cue> cues, const FileOf& fileof) override;
  void stopcues() override;
  void setambience(std::string_view name, int loudness, const FileOf& fileof) override;
  void setcuevolume(int volume) override;
  void setambiencevolume(int volume) override;

 private:
  using SharedClip = std::shared_ptr<const Clip>;
  struct Reading {
    std::shared_future<SharedClip> clip;
    bool reported = false;  // that it failed
  };
  // Has a thread of its own read all cues, so that no key waits for a file.
  void readahead(const FileOf& fileof);
  // Null for a bad file; why it is bad is added to `problems` when it is first asked for.
  SharedClip clipof(std::string_view name, const FileOf& fileof, std::string& problems);

  std::shared_ptr<Mixer> mixer_;
  std::map<std::string, Reading, std::less<>> clips_;  // by name
  std::string ambience_;
  std::jthread reader_;
};

}  // namespace duskmarch
