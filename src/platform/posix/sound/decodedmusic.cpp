#include "platform/posix/sound/decodedmusic.h"

#include <algorithm>
#include <array>
#include <atomic>

#include <samplerate.h>

#include "platform/posix/sound/soundfile.h"
#include "platform/sound/regularfile.h"

namespace duskmarch {

// Decoded block by block on the audio thread: a block takes a hundredth of its time, and the bytes
// are in memory.
class DecodedMusic::Stream : public AudioSource {
 public:
  explicit Stream(const std::filesystem::path& file)
      : decoder_(readregularfile(file)),
        ratio_(static_cast<double>(mixrate) / decoder_.rate()),
        resampler_(src_callback_new(&Stream::refill, SRC_SINC_FASTEST,
                                    static_cast<int>(decoder_.channels()), nullptr, this)) {
    if (decoder_.format() != SF_FORMAT_MPEG) throw PlatformError("not an MP3 file");
    if (!resampler_) throw PlatformError("no resampler for this music");
    if (decoder_.read(decoded_.data(), 1) == 0) throw PlatformError("no music in the file");
    decoder_.seek(0);
  }

  void mix(float* samples, std::size_t frames) noexcept override {
    if (!running) return;
    if (const double seconds = position.exchange(-1); seconds >= 0) {
      decoder_.seek(seconds);
      src_reset(resampler_.get());
    }
    const Levels heard = levels;
    while (frames > 0) {
      const std::size_t count = nextblock(std::min(frames, blockframes));
      if (count == 0) return;
      addframes(resampled_.data(), decoder_.channels(), heard, samples, count);
      samples += 2 * count;
      frames -= count;
    }
  }

  std::atomic<bool> running = false;
  std::atomic<double> position = -1;  // where to go on, in seconds; below 0: from where it is
  std::atomic<Levels> levels;

 private:
  static constexpr std::size_t blockframes = 512;
  struct Delete {
    void operator()(SRC_STATE* state) const { src_delete(state); }
  };

  static long refill(void* user, float** data) {
    auto& stream = *static_cast<Stream*>(user);
    *data = stream.decoded_.data();
    return static_cast<long>(stream.decoder_.read(stream.decoded_.data(), blockframes));
  }

  std::size_t nextblock(std::size_t frames) noexcept {
    const long count =
        src_callback_read(resampler_.get(), ratio_, static_cast<long>(frames), resampled_.data());
    return static_cast<std::size_t>(std::max(count, 0L));
  }

  SoundDecoder decoder_;
  double ratio_;
  std::unique_ptr<SRC_STATE, Delete> resampler_;
  std::array<float, 2 * blockframes> decoded_{};
  std::array<float, 2 * blockframes> resampled_{};
};

DecodedMusic::DecodedMusic(std::shared_ptr<Mixer> mixer, const std::filesystem::path& file)
    : mixer_(std::move(mixer)), stream_(std::make_shared<Stream>(file)) {
  mixer_->addsource(stream_);
}

DecodedMusic::~DecodedMusic() {
  mixer_->removesource(*stream_);
}

void DecodedMusic::setvolume(int volume) {
  volume_ = volume;
  tell();
}

void DecodedMusic::setbalance(int balance) {
  balance_ = balance;
  tell();
}

void DecodedMusic::tell() {
  stream_->levels = levels(volume_, balance_);
}

void DecodedMusic::setposition(double seconds) {
  stream_->position = std::clamp(seconds, 0.0, 1e6);
}

void DecodedMusic::run() {
  stream_->running = true;
}

}  // namespace duskmarch
