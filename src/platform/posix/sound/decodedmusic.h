// An MP3 file played through the mixer.
#pragma once

#include <filesystem>
#include <memory>

#include "platform/desktop.h"
#include "platform/sound/mixer.h"

namespace duskmarch {

class DecodedMusic : public MusicGraph {
 public:
  // Throws PlatformError when `file` is no MP3 that can be played.
  DecodedMusic(std::shared_ptr<Mixer> mixer, const std::filesystem::path& file);
  DecodedMusic(const DecodedMusic&) = delete;
  DecodedMusic& operator=(const DecodedMusic&) = delete;
  ~DecodedMusic() override;

  void setvolume(int volume) override;
  void setbalance(int balance) override;
  void setposition(double seconds) override;
  void run() override;

 private:
  class Stream;
  void tell();

  std::shared_ptr<Mixer> mixer_;
  std::shared_ptr<Stream> stream_;
  int volume_ = 0;
  int balance_ = 0;
};

}  // namespace duskmarch
