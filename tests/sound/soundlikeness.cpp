#include "soundlikeness.h"

#include <algorithm>
#include <cmath>
#include <complex>
#include <numbers>

namespace duskmarch {
namespace {

constexpr std::size_t rate = 48000, window = 2048, hop = 1024, frames = 50, bands = 18;
constexpr double lowest = 60, highest = 15000, unheard = -45;

Samples biquad(const Samples& samples, const double (&b)[3], const double (&a)[2]) {
  Samples result;
  double s1 = 0, s2 = 0;
  for (const float sample : samples) {
    const double value = b[0] * sample + s1;
    s1 = b[1] * sample - a[0] * value + s2;
    s2 = b[2] * sample - a[1] * value;
    result.push_back(static_cast<float>(value));
  }
  return result;
}

using Spectrum = std::vector<std::complex<double>>;

// A whole turn, in as many steps as a window has samples.
const Spectrum& turns() {
  static const auto table = [] {
    Spectrum result;
    for (std::size_t n = 0; n < window; ++n) {
      result.push_back(std::polar(1.0, -2 * std::numbers::pi * static_cast<double>(n) / window));
    }
    return result;
  }();
  return table;
}

// Of every `step`th of the samples from `in` on, as many as fit into a window.
void transform(const std::complex<double>* in, std::size_t step, std::complex<double>* out) {
  if (step == window) {
    *out = *in;
    return;
  }
  const std::size_t half = window / step / 2;
  transform(in, 2 * step, out);
  transform(in + step, 2 * step, out + half);
  for (std::size_t n = 0; n < half; ++n) {
    const auto part = turns()[n * step] * out[half + n];
    out[half + n] = out[n] - part;
    out[n] += part;
  }
}

Spectrum spectrum(const Samples& sound, std::size_t frame) {
  Spectrum part(window);
  for (std::size_t n = 0; n < window; ++n) {
    const std::size_t place = frame * hop + n;
    if (place < window / 2 || place - window / 2 >= sound.size()) continue;
    part[n] = sound[place - window / 2] * (0.5 - 0.5 * turns()[n].real());
  }
  Spectrum result(window);
  transform(part.data(), 1, result.data());
  return result;
}

// Bands overlap, each a triangle over the logarithm of the frequency.
double share(double frequency, std::size_t band) {
  const double width = std::log(highest / lowest) / (bands + 1);
  const double place = std::log(frequency / lowest) / width - static_cast<double>(band + 1);
  return std::max(0.0, 1 - std::abs(place));
}

// Of each frequency of a spectrum, in each band.
const std::vector<double>& shares(std::size_t band) {
  static const auto table = [] {
    std::vector<std::vector<double>> result(bands, std::vector<double>(window / 2));
    for (std::size_t n = 0; n < bands * window / 2; ++n) {
      const std::size_t bin = n / bands;
      result[n % bands][bin] = share(static_cast<double>(bin * rate) / window, n % bands);
    }
    return result;
  }();
  return table[band];
}

double difference(const Picture& one, std::size_t skip, const Picture& other) {
  double sum = 0, heard = 0;
  for (std::size_t n = 0; n + skip < frames; ++n) {
    for (std::size_t band = 0; band < bands; ++band) {
      const double a = one[n + skip][band], b = other[n][band];
      if (a <= unheard && b <= unheard) continue;
      sum += std::abs(a - b);
      ++heard;
    }
  }
  return heard > 0 ? sum / heard : 0;
}

}  // namespace

Samples weighted(const Samples& samples) {
  return biquad(biquad(samples, {1.53512485958697, -2.69169618940638, 1.19839281085285},
                       {-1.69065929318241, 0.73248077421585}),
                {1.0, -2.0, 1.0}, {-1.99004745483398, 0.99007225036621});
}

double loudestmoment(const Samples& samples) {
  double sum = 0, loudest = 0;
  const Samples heard = weighted(samples);
  for (std::size_t n = 0; n < heard.size(); ++n) {
    sum += heard[n] * heard[n];
    if (n >= rate / 10) sum -= heard[n - rate / 10] * heard[n - rate / 10];
    loudest = std::max(loudest, sum);
  }
  return 10 * std::log10(loudest / (rate / 10.0));
}

Picture picture(const Samples& sound) {
  Picture result(frames, std::vector<double>(bands));
  double loudest = 0;
  for (std::size_t frame = 0; frame < frames; ++frame) {
    const Spectrum part = spectrum(sound, frame);
    for (std::size_t band = 0; band < bands; ++band) {
      for (std::size_t n = 1; n < window / 2; ++n) {
        result[frame][band] += std::norm(part[n]) * shares(band)[n];
      }
    }
    loudest = std::max(loudest, *std::ranges::max_element(result[frame]));
  }
  for (auto& frame : result) {
    for (double& level : frame) {
      level = std::max(10 * std::log10(level / loudest + 1e-12), unheard);
    }
  }
  return result;
}

double distance(const Picture& one, const Picture& other) {
  return std::min(
      {difference(one, 0, other), difference(one, 1, other), difference(other, 1, one)});
}

}  // namespace duskmarch
