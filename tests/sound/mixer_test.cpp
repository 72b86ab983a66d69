// What the mixer renders, sample by sample.
#include "platform/sound/mixer.h"

#include <cmath>
#include <thread>

#include <gtest/gtest.h>

#include "platform/desktop.h"

namespace duskmarch {
namespace {

using Samples = std::vector<float>;

std::shared_ptr<const Clip> mono(Samples samples) {
  return std::make_shared<const Clip>(Clip{.channels = 1, .samples = std::move(samples)});
}

Samples render(Mixer& mixer, std::size_t frames) {
  Samples samples(2 * frames, 9.0F);
  mixer.render(samples.data(), frames);
  return samples;
}

TEST(Mixing, VolumeAndPanAreExactOnBothSides) {
  const int cases[][4] = {{0, 0, 0, 0},  // volume, pan; left and right in decibels
                          {-5000, 0, -50, -50},
                          {0, 10000, -100, 0},
                          {-600, -10000, -6, -106},
                          {-1000, 500, -15, -10}};
  for (const auto& [volume, pan, left, right] : cases) {
    Mixer mixer;
    mixer.load(7, mono(Samples(10, 0.5F)));
    mixer.setvolume(7, volume);
    mixer.setpan(7, pan);
    mixer.play(7, false);
    const Samples heard = render(mixer, 10);
    for (std::size_t n = 0; n < heard.size(); ++n) {
      EXPECT_NEAR(20 * std::log10(heard[n] / 0.5), n % 2 == 0 ? left : right, 0.005) << volume;
    }
  }
}

TEST(Mixing, ASoundEndsWithItsLastSampleAndALoopGoesRound) {
  Mixer mixer;
  mixer.load(0, mono({0.1F, 0.2F, 0.3F}));
  mixer.play(0, false);
  EXPECT_EQ(render(mixer, 2), (Samples{0.1F, 0.1F, 0.2F, 0.2F}));
  EXPECT_EQ(render(mixer, 3), (Samples{0.3F, 0.3F, 0, 0, 0, 0}));
  mixer.play(0, true);
  EXPECT_EQ(render(mixer, 4), (Samples{0.1F, 0.1F, 0.2F, 0.2F, 0.3F, 0.3F, 0.1F, 0.1F}));
  EXPECT_EQ(render(mixer, 1), (Samples{0.2F, 0.2F}));
  mixer.setvolume(0, -2000);  // goes on from the same sample
  EXPECT_NEAR(render(mixer, 1)[0], 0.03, 1e-6);
  EXPECT_NEAR(render(mixer, 1)[0], 0.01, 1e-6);
  mixer.play(0, true);  // begins anew
  EXPECT_NEAR(render(mixer, 1)[0], 0.01, 1e-6);
  mixer.load(0, mono({0.4F}));  // replacing stops
  EXPECT_EQ(render(mixer, 2), (Samples{0, 0, 0, 0}));
}

TEST(Mixing, StereoKeepsItsSidesAndSumsAreLimited) {
  Mixer mixer;
  mixer.load(3, std::make_shared<const Clip>(Clip{.channels = 2, .samples = {0.25F, -0.75F}}));
  mixer.load(4, mono({0.9F}));
  mixer.play(3, true);
  EXPECT_EQ(render(mixer, 2), (Samples{0.25F, -0.75F, 0.25F, -0.75F}));
  mixer.play(4, false);
  EXPECT_EQ(render(mixer, 1), (Samples{1, 0.9F - 0.75F}));
}

TEST(Mixing, WhatPassesUnheardIsOverAndALoopGoesOn) {
  Mixer mixer;
  for (const int slot : {0, 1}) mixer.load(slot, mono({0.1F, 0.2F, 0.3F}));
  mixer.play(0, false);
  mixer.play(1, true);
  mixer.play(9, true);  // never loaded
  mixer.skip(7);
  EXPECT_EQ(render(mixer, 2), (Samples{0.2F, 0.2F, 0.3F, 0.3F}));
  EXPECT_THROW(mixer.play(50, false), PlatformError);
}

struct Constant : AudioSource {
  explicit Constant(float added) : value(added) {}
  void mix(float* samples, std::size_t frames) noexcept override {
    for (std::size_t n = 0; n < 2 * frames; ++n) samples[n] += value;
  }
  float value;
};

TEST(Mixing, SourcesAreHeardTogetherUntilTheyAreRemovedAndFreedOffTheAudioThread) {
  Mixer mixer;
  auto one = std::make_shared<Constant>(0.25F);
  const std::weak_ptr<AudioSource> watch = one;
  mixer.addsource(one);
  mixer.addsource(std::make_shared<Constant>(0.5F));
  EXPECT_EQ(render(mixer, 1), (Samples{0.75F, 0.75F}));
  mixer.removesource(*one);
  one.reset();
  EXPECT_EQ(render(mixer, 1), (Samples{0.5F, 0.5F}));
  EXPECT_FALSE(watch.expired());
  mixer.tidy();
  EXPECT_TRUE(watch.expired());
}

// While one goes round within a block, the order that it is played by may be replaced and freed.
TEST(Mixing, ALoopShorterThanABlockIsChangedWhileItIsMixed) {
  Mixer mixer;
  mixer.load(0, mono(Samples(8, 0.25F)));
  mixer.play(0, true);
  std::atomic<bool> done = false;
  std::thread audio([&] {
    while (!done) render(mixer, 512);
  });
  for (int n = 0; n < 200'000; ++n) mixer.setvolume(0, -n % 5000);
  mixer.setvolume(0, 0);
  done = true;
  audio.join();
  EXPECT_EQ(render(mixer, 1), (Samples{0.25F, 0.25F}));
}

}  // namespace
}  // namespace duskmarch
