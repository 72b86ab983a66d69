// Brings the synthesizer's samples to the mixer's rate and level.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <span>
#include <vector>

namespace duskmarch {

// Receives a stretch of samples; false when no more are wanted.
template <class Sample>
using SampleSink = std::function<bool(std::span<const Sample>)>;

class Resampler {
 public:
  // Full scale becomes `gain`. This and feed() throw PlatformError when the library refuses.
  Resampler(int rate, float gain);
  ~Resampler();

  // Forgets what it was fed: the next samples begin something new.
  void reset();
  // Passes on what `samples` give; with `last`, also the end that was still held back. False when
  // the sink wanted no more.
  bool feed(std::span<const std::int16_t> samples, bool last, const SampleSink<float>& sink);

 private:
  struct Converter;
  std::unique_ptr<Converter> converter_;
  double ratio_;
  float scale_;
  std::vector<float> input_;
  std::vector<float> output_;
};

}  // namespace duskmarch
