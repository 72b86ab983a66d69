#include "platform/sound/wavfile.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include <samplerate.h>

#include "platform/desktop.h"
#include "platform/sound/audiosource.h"
#include "platform/sound/regularfile.h"
#include "platform/sound/wavreader.h"

namespace duskmarch {
namespace {

constexpr std::size_t longestsound = 600;  // seconds
constexpr float largestsample = 1000;      // full scale is 1

void check(const Wave& wave) {
  if (wave.samples.empty()) throw PlatformError("it holds no sound");
  if (wave.samples.size() > longestsound * wave.channels * static_cast<std::size_t>(wave.rate)) {
    throw PlatformError("it is too long");
  }
  const auto sensible = [](float sample) { return std::abs(sample) <= largestsample; };
  if (!std::ranges::all_of(wave.samples, sensible)) {
    throw PlatformError("it holds samples that are no numbers, or far too large");
  }
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
  Wave wave = readwave(readregularfile(file));
  check(wave);
  Clip clip{.channels = wave.channels, .samples = std::move(wave.samples)};
  return wave.rate == mixrate ? clip : resampled(clip, wave.rate);
}

}  // namespace duskmarch
