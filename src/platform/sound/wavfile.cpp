#include "platform/sound/wavfile.h"

#include <algorithm>
#include <cmath>
#include <span>
#include <string_view>

#include <samplerate.h>

#include "platform/desktop.h"
#include "platform/sound/soundfile.h"

namespace duskmarch {
namespace {

constexpr std::size_t longestsound = 600;  // seconds
constexpr float largestsample = 1000;      // full scale is 1

bool standsat(std::span<const std::byte> bytes, std::size_t offset, std::string_view name) {
  return std::ranges::equal(bytes.subspan(offset, name.size()), std::as_bytes(std::span(name)));
}

std::size_t chunksize(std::span<const std::byte> bytes, std::size_t offset) {
  std::size_t size = 0;
  for (std::size_t n = 4; n-- > 0;)
    size = size * 256 + std::to_integer<std::size_t>(bytes[offset + n]);
  return size;
}

// The decoder plays a file that was cut short as if it were whole.
void checkchunks(std::span<const std::byte> bytes) {
  if (bytes.size() < 12 || !standsat(bytes, 0, "RIFF") || !standsat(bytes, 8, "WAVE")) {
    throw PlatformError("not a RIFF WAVE file");
  }
  for (std::size_t offset = 12; offset + 8 <= bytes.size();) {
    const std::size_t size = chunksize(bytes, offset + 4);
    if (standsat(bytes, offset, "data")) {
      if (size <= bytes.size() - offset - 8) return;
      throw PlatformError("its data chunk is longer than the file");
    }
    offset += 8 + size + size % 2;
  }
  throw PlatformError("it has no data chunk");
}

Clip decode(SoundDecoder& decoder) {
  if (decoder.frames() > longestsound * static_cast<std::size_t>(decoder.rate())) {
    throw PlatformError("it is too long");
  }
  Clip clip{.channels = decoder.channels(), .samples = {}};
  clip.samples.resize(decoder.frames() * clip.channels);
  clip.samples.resize(decoder.read(clip.samples.data(), decoder.frames()) * clip.channels);
  if (clip.samples.empty()) throw PlatformError("it holds no sound");
  const auto sensible = [](float sample) { return std::abs(sample) <= largestsample; };
  if (!std::ranges::all_of(clip.samples, sensible)) {
    throw PlatformError("it holds samples that are no numbers, or far too large");
  }
  return clip;
}

Clip resampled(const Clip& clip, int rate) {
  const double ratio = static_cast<double>(mixrate) / rate;
  const auto frames =
      static_cast<std::size_t>(std::ceil(static_cast<double>(clip.frames()) * ratio));
  Clip result{.channels = clip.channels, .samples = std::vector<float>(frames * clip.channels)};
  SRC_DATA work{};
  work.data_in = clip.samples.data();
  work.data_out = result.samples.data();
  work.input_frames = static_cast<long>(clip.frames());
  work.output_frames = static_cast<long>(frames);
  work.src_ratio = ratio;
  if (const int error = src_simple(&work, SRC_SINC_FASTEST, static_cast<int>(clip.channels))) {
    throw PlatformError(src_strerror(error));
  }
  result.samples.resize(static_cast<std::size_t>(work.output_frames_gen) * clip.channels);
  if (result.samples.empty()) throw PlatformError("it holds no sound");
  return result;
}

}  // namespace

Clip readwav(const std::filesystem::path& file) {
  std::vector<std::byte> bytes = readregularfile(file);
  checkchunks(bytes);
  SoundDecoder decoder(std::move(bytes));
  Clip clip = decode(decoder);
  return decoder.rate() == mixrate ? clip : resampled(clip, decoder.rate());
}

}  // namespace duskmarch
