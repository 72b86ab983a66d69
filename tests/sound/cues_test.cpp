// When, where, how high and how loud cues and ambience are heard, off the rendered samples.
#include <cmath>
#include <functional>
#include <thread>

#include <gtest/gtest.h>

#include "platform/sound/mixer.h"

namespace duskmarch {
namespace {

using Samples = std::vector<float>;

std::shared_ptr<const Clip> mono(Samples samples) {
  return std::make_shared<const Clip>(Clip{.channels = 1, .samples = std::move(samples)});
}

std::shared_ptr<const Clip> steady(std::size_t frames, float level = 0.5F) {
  return mono(Samples(frames, level));
}

// In blocks of changing sizes, as devices ask for them.
Samples render(Mixer& mixer, std::size_t frames) {
  Samples samples(2 * frames, 9.0F);
  for (std::size_t done = 0, block = 1; done < frames; done += block, block = block % 600 + 97) {
    block = std::min(block, frames - done);
    mixer.render(&samples[2 * done], block);
  }
  return samples;
}

Samples side(const Samples& samples, std::size_t which) {
  Samples result;
  for (std::size_t n = which; n < samples.size(); n += 2) result.push_back(samples[n]);
  return result;
}

// The largest change from one sample to the next, `before` the first of them: a click.
float sharpest(const Samples& samples, float before) {
  float most = 0;
  for (const float sample : samples) {
    most = std::max(most, std::abs(sample - before));
    before = sample;
  }
  return most;
}

TEST(Cues, OneThatIsLateBeginsAtOnceAndFromItsStart) {
  Mixer mixer;
  render(mixer, 1000);
  mixer.cues().start({{.clip = mono({0.1F, 0.2F}), .start = 400}});
  EXPECT_EQ(side(render(mixer, 3), 0), (Samples{0.1F, 0.2F, 0}));
}

TEST(Cues, PitchChangesHowFastTheyPass) {
  Samples ramp;
  for (int n = 0; n < 1000; ++n) ramp.push_back(static_cast<float>(n + 1) / 2000);
  for (const int pitch : {0, 100, -100, 200, -300, 1200, -1200}) {
    Mixer mixer;
    mixer.cues().start({{.clip = mono(ramp), .pitch = pitch}});
    const Samples heard = side(render(mixer, 2500), 0);
    const double step = std::exp2(pitch / 1200.0);
    const auto length = static_cast<std::size_t>(std::ceil(1000 / step));
    for (std::size_t n = 2; n < length - 4; ++n) {
      ASSERT_NEAR(heard[n], (static_cast<double>(n) * step + 1) / 2000, 1e-4) << pitch;
    }
    EXPECT_GT(heard[length - 1], 0) << pitch;
    EXPECT_EQ(heard[length], 0) << pitch;
  }
}

// Voices whose levels are powers of two: their sum tells which of them sound.
unsigned sounding(Mixer& mixer) {
  render(mixer, 2000);
  return static_cast<unsigned>(std::lround(render(mixer, 1)[0] * (1 << 22)));
}

TEST(Cues, OfMoreThanSixteenTheLightestGoesAndOfTheseTheOldest) {
  Mixer mixer;
  const auto start = [&](int bit, int weight) {
    const float level = std::ldexp(1.0F, bit - 22);
    mixer.cues().start({{.clip = steady(48000, level), .start = mixer.now(), .weight = weight}});
    return static_cast<unsigned>(std::lround(render(mixer, 10)[0] * (1 << 22)));
  };
  for (int bit = 0; bit < 16; ++bit) start(bit, bit == 3 || bit == 5 ? 1 : 2);
  EXPECT_EQ(sounding(mixer), 0xFFFFU);
  start(16, 2);
  EXPECT_EQ(sounding(mixer), 0x1FFF7U);  // without 3
  EXPECT_EQ(start(17, 0), 0x1FFF7U);     // lighter than all: not even its beginning
  EXPECT_EQ(sounding(mixer), 0x1FFF7U);
  start(18, 3);
  EXPECT_EQ(sounding(mixer), 0x5FFD7U);  // without 5
  start(19, 2);
  EXPECT_EQ(sounding(mixer), 0xDFFD6U);  // without 0
}

TEST(Cues, StoppedOnesFadeAndThoseToComeNeverDo) {
  Mixer mixer;
  for (const std::uint64_t start : {0U, 600U, 3000U, 40000U}) {
    mixer.cues().start({{.clip = steady(20000), .start = start, .levels = {.left = 0.5F}}});
  }
  render(mixer, 1000);
  mixer.cues().stop();
  const Samples heard = side(render(mixer, 60000), 0);
  EXPECT_NEAR(heard[0], 0.5, 0.01);
  EXPECT_LT(sharpest(heard, 0.5F), 0.002);
  EXPECT_EQ(Samples(heard.begin() + 960, heard.end()), Samples(heard.size() - 960));
  mixer.cues().start({{.clip = steady(10), .start = mixer.now()}});
  EXPECT_EQ(render(mixer, 1)[0], 0.5F);
}

struct Speaker : AudioSource {
  void mix(float*, std::size_t) noexcept override {}
  bool speaks() const noexcept override { return speaking; }
  bool speaking = false;
};

TEST(Cues, TheyAreSmoothlyLoweredUnderSpeech) {
  Mixer mixer;
  const auto speaker = std::make_shared<Speaker>();
  mixer.addsource(speaker);
  const auto inside = [&](bool speaks) { speaker->speaking = speaks; };
  const auto outside = [&](bool speaks) { mixer.setspeaking(speaks); };
  for (const std::function<void(bool)>& speak : {std::function(inside), std::function(outside)}) {
    mixer.cues().stop();
    render(mixer, 2000);
    mixer.cues().start({{.clip = steady(96000), .start = mixer.now()}});
    render(mixer, 1000);
    speak(true);
    const Samples lower = side(render(mixer, 2400), 0);
    EXPECT_LT(sharpest(lower, 0.5F), 0.001);
    EXPECT_FLOAT_EQ(lower.back(), 0.25F);
    speak(false);
    const Samples louder = side(render(mixer, 24000), 0);
    EXPECT_LT(sharpest(louder, 0.25F), 0.001);
    EXPECT_FLOAT_EQ(louder.back(), 0.5F);
  }
  mixer.cues().stop();
  render(mixer, 2000);
  outside(true);
  mixer.load(0, steady(10));
  mixer.play(0, true);
  mixer.cues().start({{.clip = steady(10), .start = mixer.now()}});
  EXPECT_FLOAT_EQ(render(mixer, 1)[0], 0.75F);  // lowered from its first sample; the effect is not
}

TEST(Cues, WhatPassesUnheardIsOver) {
  Mixer mixer;
  mixer.cues().start({{.clip = steady(1000), .start = 0},
                      {.clip = mono(Samples(5000, 0.25F)), .start = 700},
                      {.clip = steady(1000), .start = 6000}});
  mixer.skip(2000);
  const Samples heard = side(render(mixer, 8000), 0);
  EXPECT_EQ(heard[3699], 0.25F);
  EXPECT_EQ(heard[3700], 0);
  EXPECT_EQ(heard[3999], 0);
  EXPECT_EQ(heard[4000], 0.5F);
}

TEST(Ambiences, TheyGoRoundWithoutASeam) {
  Samples wave;
  const double turn = 2 * std::acos(-1.0) / 480;
  for (int n = 0; n < 480; ++n) wave.push_back(static_cast<float>(std::cos(n * turn) / 2));
  for (const int pitch : {0, 77}) {
    Mixer mixer;
    mixer.ambience().start({{.clip = mono(wave), .pitch = pitch, .loop = true}});
    render(mixer, 24000);
    const Samples heard = side(render(mixer, 10000), 0);
    const double step = std::exp2(pitch / 1200.0);
    for (int n = 0; n < 10000; ++n) {
      ASSERT_NEAR(heard[static_cast<std::size_t>(n)], std::cos((24000 + n) * step * turn) / 2, 1e-5)
          << pitch << " at " << n;
    }
  }
}

TEST(Ambiences, TheyFadeInCrossAndFadeOutWithinHalfASecond) {
  Mixer mixer;
  const auto play = [&](float level) {
    mixer.ambience().stop();
    mixer.ambience().start({{.clip = steady(777, level), .start = mixer.now(), .loop = true}});
  };
  play(0.5F);
  const Samples in = side(render(mixer, 24001), 0);
  EXPECT_LT(in.front(), 0.001);
  EXPECT_GT(in[12000], 0.3);
  EXPECT_LT(in[23000], 0.5);
  EXPECT_FLOAT_EQ(in.back(), 0.5F);
  EXPECT_LT(sharpest(in, 0), 0.001);
  play(0.25F);
  const Samples crossing = side(render(mixer, 24001), 0);
  EXPECT_NEAR(crossing[12000], 0.6875 * 0.75, 0.01);
  EXPECT_FLOAT_EQ(crossing.back(), 0.25F);
  EXPECT_LT(sharpest(crossing, 0.5F), 0.001);
  mixer.setspeaking(true);
  EXPECT_FLOAT_EQ(render(mixer, 5000)[9999], 0.25F);
  mixer.ambience().setlevel(0.5F);
  const Samples softer = side(render(mixer, 5000), 0);
  EXPECT_LT(sharpest(softer, 0.25F), 0.001);
  EXPECT_FLOAT_EQ(softer.back(), 0.125F);
  mixer.ambience().stop();
  const Samples out = side(render(mixer, 24001), 0);
  EXPECT_GT(out[12000], 0.05);
  EXPECT_EQ(out.back(), 0);
  EXPECT_LT(sharpest(out, 0.125F), 0.001);
}

TEST(Cues, EverythingComesAndGoesWhileAnotherThreadRendersAndIsFreedOffIt) {
  Mixer mixer;
  std::atomic<bool> done = false;
  std::thread audio([&] {
    while (!done) render(mixer, 512);
  });
  std::weak_ptr<const Clip> watch;
  const auto speaker = std::make_shared<Speaker>();
  for (int n = 0; n < 3000; ++n) {
    const auto clip = steady(300, 0.01F);
    if (n == 2999) watch = clip;
    std::vector<TimedSound> sounds(3, {.clip = clip, .start = mixer.now(), .pitch = n % 99});
    sounds.back().start += 1000;
    mixer.cues().start(std::move(sounds));
    mixer.ambience().start({{.clip = clip, .start = mixer.now(), .loop = true}});
    mixer.cues().setlevel(0.5F);
    if (n % 3 == 0) mixer.cues().stop();
    if (n % 5 == 0) mixer.ambience().stop();
    mixer.load(n % 50, clip);
    mixer.play(n % 50, n % 2 == 0);
    n % 2 == 0 ? mixer.addsource(speaker) : mixer.removesource(*speaker);
    if (n % 7 == 0) mixer.tidy();
  }
  mixer.cues().stop();
  mixer.ambience().stop();
  for (int slot = 0; slot < 50; ++slot) mixer.load(slot, steady(1));
  done = true;
  audio.join();
  EXPECT_EQ(side(render(mixer, 30000), 0).back(), 0);
  mixer.tidy();
  render(mixer, 1);
  mixer.tidy();
  EXPECT_TRUE(watch.expired());
}

}  // namespace
}  // namespace duskmarch
