// Sound files held in memory and decoded from there.
#pragma once

#include <cstddef>
#include <memory>
#include <vector>

#include <sndfile.h>

namespace duskmarch {

// Decodes mono or stereo sound of a rate between 4000 and 192000.
class SoundDecoder {
 public:
  // Throws PlatformError when the bytes are no such sound.
  explicit SoundDecoder(std::vector<std::byte> bytes);
  SoundDecoder(const SoundDecoder&) = delete;
  SoundDecoder& operator=(const SoundDecoder&) = delete;

  std::size_t channels() const { return static_cast<std::size_t>(info_.channels); }
  int rate() const { return info_.samplerate; }
  // SF_FORMAT_MPEG ...
  int format() const { return info_.format & SF_FORMAT_TYPEMASK; }
  // As far as the file says.
  std::size_t frames() const;

  // The number of frames decoded; fewer than wanted at the end and when the rest is damaged.
  std::size_t read(float* samples, std::size_t frames) noexcept;
  // Beyond the end means at the end.
  void seek(double seconds) noexcept;

 private:
  struct Close {
    void operator()(SNDFILE* file) const { sf_close(file); }
  };
  struct Bytes {
    std::vector<std::byte> bytes;
    std::size_t position = 0;
  };
  static SF_VIRTUAL_IO memoryaccess();

  Bytes source_;
  SF_INFO info_{};
  std::unique_ptr<SNDFILE, Close> file_;
};

}  // namespace duskmarch
