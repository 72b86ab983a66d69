// From the game's calls to what the sound device gets, through SDL's disk driver.
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <future>
#include <numbers>

#include <sndfile.h>

#include "../harness.h"
#include "platform/posix/sound/decodedmusic.h"
#include "platform/sound/soundoutput.h"

namespace duskmarch {
namespace {

using Samples = std::vector<float>;

// Tells when so many frames have been played.
struct FrameCount : AudioSource {
  explicit FrameCount(std::size_t wanted) : left(wanted) {}
  void mix(float*, std::size_t frames) noexcept override {
    if (left > 0 && left <= frames) reached.set_value();
    left -= std::min(left, frames);
  }
  std::size_t left;
  std::promise<void> reached;
};

// What the device gets in the half second after `action`; what that returns is kept until then.
template <class Action>
Samples recorded(const ProgramFolder& folder, Action action) {
  const std::filesystem::path file = folder.path / "device.raw";
  setenv("SDL_AUDIODRIVER", "disk", 1);
  setenv("SDL_DISKAUDIOFILE", file.c_str(), 1);
  {
    SoundOutput output([](std::string_view line) { ADD_FAILURE() << line; });
    output.start();
    [[maybe_unused]] const auto kept = action(output);
    const auto count = std::make_shared<FrameCount>(mixrate / 2);
    output.mixer()->addsource(count);
    EXPECT_EQ(count->reached.get_future().wait_for(std::chrono::minutes(1)),
              std::future_status::ready);
  }
  const std::string bytes = folder.read("device.raw");
  Samples samples(bytes.size() / sizeof(float));
  std::memcpy(samples.data(), bytes.data(), samples.size() * sizeof(float));
  return samples;
}

// A second of a 441 Hz tone with amplitude 0.5.
void writemp3(const std::filesystem::path& file) {
  SF_INFO info{};
  info.samplerate = 44100;
  info.channels = 1;
  info.format = SF_FORMAT_MPEG | SF_FORMAT_MPEG_LAYER_III;
  SNDFILE* mp3 = sf_open(file.c_str(), SFM_WRITE, &info);
  ASSERT_NE(mp3, nullptr) << sf_strerror(nullptr);
  Samples tone(44100);
  for (std::size_t n = 0; n < tone.size(); ++n) {
    tone[n] = 0.5F * std::sin(static_cast<float>(n % 100) * std::numbers::pi_v<float> / 50);
  }
  sf_writef_float(mp3, tone.data(), 44100);
  sf_close(mp3);
}

// Of a tone of amplitude 0.5 on one side, in decibels, in a fifth of a second from `frame` on.
double level(const Samples& heard, std::size_t side, std::size_t frame) {
  double sum = 0;
  for (std::size_t n = frame; n < frame + 9600; ++n) {
    sum += heard[2 * n + side] * heard[2 * n + side];
  }
  return 10 * std::log10(sum / 9600 / 0.125);
}

Samples rendered(Mixer& mixer) {
  Samples samples(std::size_t{2} * 19200);
  mixer.render(samples.data(), 19200);
  return samples;
}

class MusicPlaying : public testing::Test {
 protected:
  MusicPlaying() { writemp3(tone); }
  std::unique_ptr<DecodedMusic> running(const std::shared_ptr<Mixer>& where, int volume,
                                        int balance) const {
    auto music = std::make_unique<DecodedMusic>(where, tone);
    music->setvolume(volume);
    music->setbalance(balance);
    music->run();
    return music;
  }

  ProgramFolder folder;
  std::filesystem::path tone = folder.path / "tone.mp3";
  std::shared_ptr<Mixer> mixer = std::make_shared<Mixer>();
};

TEST_F(MusicPlaying, AnMp3ReachesTheDeviceAtTheLevelAskedFor) {
  const Samples heard =
      recorded(folder, [&](SoundOutput& output) { return running(output.mixer(), -500, 300); });
  const auto start = std::ranges::find_if(heard, [](float sample) { return sample != 0; });
  const auto frame = static_cast<std::size_t>(start - heard.begin()) / 2 + 4800;
  ASSERT_GT(heard.size(), 2 * (frame + 9600));
  EXPECT_NEAR(level(heard, 0, frame), -8, 0.1);
  EXPECT_NEAR(level(heard, 1, frame), -5, 0.1);
}

TEST_F(MusicPlaying, OnePlayerGoesOnWhileTheOtherIsReloaded) {
  const auto alone = std::make_shared<Mixer>();
  const auto undisturbed = running(alone, 0, 0), other = running(mixer, 0, 0);
  for (int part = 0; part < 2; ++part) {
    const auto reloaded = running(mixer, 0, -10000);  // all but gone on the right
    const Samples wanted = rendered(*alone), heard = rendered(*mixer);
    for (std::size_t n = 1; n < wanted.size(); n += 2) ASSERT_NEAR(heard[n], wanted[n], 1e-4) << n;
  }
}

TEST_F(MusicPlaying, MusicEndsWithItsFileOrItsGraphAndBeginsAnewAtItsStart) {
  const Samples silence(38400);
  auto music = std::make_unique<DecodedMusic>(mixer, tone);
  EXPECT_EQ(rendered(*mixer), silence);  // not before it is run
  music->run();
  for (int round = 0; round < 2; ++round) {
    EXPECT_NEAR(level(rendered(*mixer), 0, 4800), 0, 0.1);
    for (int n = 0; n < 3; ++n) rendered(*mixer);
    EXPECT_EQ(rendered(*mixer), silence);
    music->setposition(0);
  }
  music.reset();
  EXPECT_EQ(rendered(*mixer), silence);
}

TEST_F(MusicPlaying, WhatIsNoMp3IsRefused) {
  folder.write("empty.mp3", "");
  folder.write("noise.mp3", std::string(5000, '\x5a'));
  for (const char* name :
       {"empty.mp3", "noise.mp3", "sounds/menu/arrows.wav", "none.mp3", "sounds"}) {
    EXPECT_THROW(DecodedMusic(mixer, folder.path / name), PlatformError) << name;
  }
}

}  // namespace
}  // namespace duskmarch
