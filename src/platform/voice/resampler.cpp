#include "platform/voice/resampler.h"

#include <samplerate.h>

#include <string>

#include "platform/desktop.h"
#include "platform/sound/audiosource.h"

namespace duskmarch {
namespace {

constexpr std::size_t outputsize = 4096;
constexpr float fullscale = 32768;

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
  if (error == 0 && src_is_valid_ratio(ratio_) == 0) error = SRC_ERR_BAD_SRC_RATIO;
  if (error != 0) {
    throw PlatformError(std::string("the voice cannot be resampled: ") + src_strerror(error));
  }
}
...
