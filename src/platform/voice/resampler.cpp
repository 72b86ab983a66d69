#include "platform/voice/resampler.h"

#include <algorithm>
#include <string>

#include <samplerate.h>

#include "platform/desktop.h"
#include "platform/sound/audiosource.h"

namespace duskmarch {
namespace {

constexpr std::size_t outputsize = 4096;
constexpr float fullscale = 32768;

void check(int error) {
  if (error == 0) return;
  throw PlatformError(std::string("the voice cannot be resampled: ") + src_strerror(error));
}

}  // namespace

struct Resampler::Converter {
  SRC_STATE* state = nullptr;
  ~Converter() { src_delete(state); }
};

Resampler::Resampler(int rate, float gain)
    : converter_(std::make_unique<Converter>()),
      ratio_(static_cast<double>(mixrate) / rate),
      scale_(gain / fullscale),
      output_(outputsize) {
  int error = 0;
  converter_->state = src_new(SRC_SINC_FASTEST, 1, &error);
  check(error);
}

Resampler::~Resampler() = default;

void Resampler::reset() {
  src_reset(converter_->state);
}

bool Resampler::feed(std::span<const std::int16_t> samples, bool last,
                     const SampleSink<float>& sink) {
  input_.resize(samples.size());
  std::ranges::transform(samples, input_.begin(),
                         [&](std::int16_t sample) { return static_cast<float>(sample) * scale_; });
  SRC_DATA data{};
  data.data_in = input_.data();
  data.input_frames = static_cast<long>(input_.size());
  data.data_out = output_.data();
  data.output_frames = static_cast<long>(output_.size());
  data.src_ratio = ratio_;
  data.end_of_input = last ? 1 : 0;
  for (;;) {
    check(src_process(converter_->state, &data));
    const auto made = static_cast<std::size_t>(data.output_frames_gen);
    if (made > 0 && !sink(std::span(output_).first(made))) return false;
    data.data_in += data.input_frames_used;
    data.input_frames -= data.input_frames_used;
    if (data.input_frames == 0 && made < output_.size()) return true;
  }
}

}  // namespace duskmarch
