// Which files are played as effects, which are refused, and when they are decoded.
#include "platform/sound/wavfile.h"

#include <bit>
#include <limits>

#include "../harness.h"
#include "platform/sound/clipcache.h"
#include "platform/sound/mixedsounds.h"

namespace duskmarch {
namespace {

std::string number(std::uint64_t value, int bytes) {
  std::string text;
  for (; bytes > 0; --bytes, value >>= 8) text += static_cast<char>(value & 255);
  return text;
}

struct Wav {
  unsigned encoding = 1;  // 3: floating point
  unsigned channels = 1;
  unsigned rate = 48000;
  unsigned bits = 16;
  std::string data = number(0x4000, 2) + number(0xC000, 2);
  std::uint64_t size = data.size();  // as claimed
};

std::string wav(const Wav& w) {
  const unsigned frame = w.channels * w.bits / 8;
  const std::string body = "WAVEfmt " + number(16, 4) + number(w.encoding, 2) +
                           number(w.channels, 2) + number(w.rate, 4) +
                           number(std::uint64_t{w.rate} * frame, 4) + number(frame, 2) +
                           number(w.bits, 2) + "data" + number(w.size, 4) + w.data;
  return "RIFF" + number(body.size(), 4) + body;
}

std::string floats(float value) {
  return number(std::bit_cast<std::uint32_t>(value), 4);
}

// Why a file of these bytes is refused; empty when it is not.
std::string refusal(const ProgramFolder& folder, const std::string& bytes) {
  folder.write("x.wav", bytes);
  try {
    readwav(folder.path / "x.wav");
    return "";
  } catch (const PlatformError& error) {
    return error.what();
  }
}

TEST(WavFiles, DamagedOnesAreRefused) {
  const ProgramFolder folder;
  const std::string whole = wav({});
  const std::string none = "no numbers", more = "longer than the file", kind = "not a RIFF WAVE";
  const std::pair<std::string, std::string> cases[] = {
      {"", kind},
      {whole.substr(0, 11), kind},
      {"OggS" + whole.substr(4), kind},
      {whole.substr(0, 36), "no data chunk"},
      {wav({.size = 6}), more},
      {wav({.size = 0xFFFFFFFF}), more},
      {whole.substr(0, whole.size() - 1), more},
      {wav({.data = ""}), "no sound"},
      {wav({.channels = 3, .data = std::string(6, 1)}), "two channels"},
      {wav({.channels = 0}), "no channels"},
      {wav({.encoding = 0x1234}), "not known"},
      {wav({.bits = 12}), "not known"},
      {whole.substr(0, 12) + whole.substr(36), "no format"},
      {std::string(whole).replace(32, 1, "\4"), "frames"},
      {wav({.rate = 3999}), "a rate of 3999"},
      {wav({.rate = 0}), "a rate of 0"},
      {wav({.rate = 192001}), "a rate of 192001"},
      {wav({.encoding = 3, .bits = 32, .data = floats(std::numeric_limits<float>::quiet_NaN())}),
       none},
      {wav({.encoding = 3, .bits = 32, .data = floats(-1e30F)}), none},
  };
  for (const auto& [bytes, reason] : cases) {
    EXPECT_NE(refusal(folder, bytes).find(reason), std::string::npos)
        << reason << " expected, not: " << refusal(folder, bytes);
  }
}

// Half of full scale up and down where the encoding has just that, else its loudest.
TEST(WavFiles, EveryUsualEncodingIsRead) {
  const ProgramFolder folder;
  const auto halves = [](auto half, int bytes) {
    return number(static_cast<std::uint64_t>(half), bytes) +
           number(static_cast<std::uint64_t>(-half), bytes);
  };
  struct Case {
    Wav wav;
    float heard = 0.5F;
  };
  const std::string doubles =
      number(std::bit_cast<std::uint64_t>(0.5), 8) + number(std::bit_cast<std::uint64_t>(-0.5), 8);
  const Case cases[] = {
      {{.bits = 8, .data = "\xC0\x40"}},
      {{.bits = 24, .data = halves(1 << 22, 3)}},
      {{.bits = 32, .data = halves(1 << 30, 4)}},
      {{.encoding = 3, .bits = 32, .data = floats(0.5F) + floats(-0.5F)}},
      {{.encoding = 3, .bits = 64, .data = doubles}},
      {{.encoding = 6, .bits = 8, .data = "\xAA\x2A"}, 32256 / 32768.0F},
      {{.encoding = 7, .bits = 8, .data = number(0x0080, 2)}, 32124 / 32768.0F},
      {{.data = halves(0x4000, 2) + "x"}},  // half a frame is left over
  };
  for (const Case& c : cases) {
    folder.write("x.wav", wav(c.wav));
    EXPECT_EQ(readwav(folder.path / "x.wav").samples, (std::vector<float>{c.heard, -c.heard}))
        << c.wav.encoding << " " << c.wav.bits;
  }
  std::string longer = wav({.encoding = 0xFFFE});
  longer.replace(16, 1, "\x28")
      .insert(36, number(22, 2) + number(16, 2) + number(3, 4) + number(1, 2) + std::string(14, 0));
  folder.write("x.wav", longer);
  EXPECT_EQ(readwav(folder.path / "x.wav").samples, (std::vector<float>{0.5F, -0.5F}));
}

TEST(WavFiles, WhatIsNoRegularFileIsRefusedWithoutWaiting) {
  const ProgramFolder folder;
  ASSERT_TRUE(makepipe(folder.path / "pipe.wav"));
  for (const char* name : {"pipe.wav", "sounds", "none.wav"}) {
    EXPECT_THROW(readwav(folder.path / name), PlatformError) << name;
  }
}

TEST(WavFiles, GoodOnesAreDecodedAndABadOneLeavesTheBufferAsItWas) {
  const ProgramFolder folder;
  folder.write("x.wav", wav({}));
  EXPECT_EQ(readwav(folder.path / "x.wav").samples, (std::vector<float>{0.5F, -0.5F}));
  const auto mixer = std::make_shared<Mixer>();
  MixedSounds sounds(mixer);
  sounds.load(8, "good", folder.path / "x.wav");
  EXPECT_THROW(sounds.load(8, "bad", folder.path / "none.wav"), PlatformError);
  sounds.play(8, false);
  std::vector<float> heard(2);
  mixer->render(heard.data(), 1);
  EXPECT_EQ(heard, (std::vector<float>{0.5F, 0.5F}));
  folder.write("x.wav", wav({.channels = 2, .rate = 22050, .data = std::string(4 * 2205, '\x20')}));
  const Clip slow = readwav(folder.path / "x.wav");  // a tenth of a second
  EXPECT_EQ(slow.channels, 2U);
  EXPECT_NEAR(static_cast<double>(slow.frames()), 4800, 1);
  EXPECT_NEAR(slow.samples[4800], 0x2020 / 32768.0, 0.002);
}

TEST(ClipCache, DecodesAgainWhatHasChanged) {
  const ProgramFolder folder;
  const std::filesystem::path file = folder.path / "sounds/menu/arrows.wav";
  ClipCache clips;
  const auto arrows = clips.clip(file);
  EXPECT_EQ(clips.clip(file), arrows);
  const auto time = std::filesystem::last_write_time(file);
  std::filesystem::last_write_time(file, time + std::chrono::seconds(1));
  const auto later = clips.clip(file);
  EXPECT_NE(later, arrows);
  std::filesystem::remove(file);
  std::filesystem::copy_file(folder.path / "sounds/menu/enter.wav", file);
  std::filesystem::last_write_time(file, time + std::chrono::seconds(1));
  EXPECT_NE(clips.clip(file)->samples.size(), arrows->samples.size());
  std::filesystem::remove(file);
  EXPECT_THROW(clips.clip(file), PlatformError);
  folder.write("sounds/menu/arrows.wav", "no sound");
  EXPECT_THROW(clips.clip(file), PlatformError);
  EXPECT_THROW(clips.clip(file), PlatformError);
}

}  // namespace
}  // namespace duskmarch
