#include "platform/posix/sound/soundfile.h"

#include <algorithm>
#include <cstring>
#include <string>

#include "platform/desktop.h"

namespace duskmarch {
SF_VIRTUAL_IO SoundDecoder::memoryaccess() {
  SF_VIRTUAL_IO access{};
  access.get_filelen = [](void* user) {
    return static_cast<sf_count_t>(static_cast<Bytes*>(user)->bytes.size());
  };
  access.tell = [](void* user) {
    return static_cast<sf_count_t>(static_cast<Bytes*>(user)->position);
  };
  access.seek = [](sf_count_t offset, int whence, void* user) {
    auto& source = *static_cast<Bytes*>(user);
    const auto size = static_cast<sf_count_t>(source.bytes.size());
    if (whence == SEEK_CUR) offset += static_cast<sf_count_t>(source.position);
    if (whence == SEEK_END) offset += size;
    offset = std::clamp<sf_count_t>(offset, 0, size);
    source.position = static_cast<std::size_t>(offset);
    return offset;
  };
  access.read = [](void* target, sf_count_t count, void* user) {
    auto& source = *static_cast<Bytes*>(user);
    const std::size_t size =
        std::min(static_cast<std::size_t>(count), source.bytes.size() - source.position);
    if (size > 0) std::memcpy(target, &source.bytes[source.position], size);
    source.position += size;
    return static_cast<sf_count_t>(size);
  };
  return access;
}

SoundDecoder::SoundDecoder(std::vector<std::byte> bytes) : source_{std::move(bytes)} {
  SF_VIRTUAL_IO access = memoryaccess();
  file_.reset(sf_open_virtual(&access, SFM_READ, &info_, &source_));
  if (!file_) throw PlatformError(sf_strerror(nullptr));
  if (info_.channels < 1 || info_.channels > 2) throw PlatformError("more than two channels");
  if (info_.samplerate < 4000 || info_.samplerate > 192000) {
    throw PlatformError("a rate of " + std::to_string(info_.samplerate) + " a second");
  }
}

std::size_t SoundDecoder::frames() const {
  return static_cast<std::size_t>(std::max<sf_count_t>(info_.frames, 0));
}

std::size_t SoundDecoder::read(float* samples, std::size_t frames) noexcept {
  const sf_count_t count = sf_readf_float(file_.get(), samples, static_cast<sf_count_t>(frames));
  return static_cast<std::size_t>(std::max<sf_count_t>(count, 0));
}

void SoundDecoder::seek(double seconds) noexcept {
  const auto frame = static_cast<sf_count_t>(seconds * info_.samplerate);
  sf_seek(file_.get(), std::clamp<sf_count_t>(frame, 0, info_.frames), SEEK_SET);
}

}  // namespace duskmarch
