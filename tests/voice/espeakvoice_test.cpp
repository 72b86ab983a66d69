// The game's own voice, as the mixer hears it.
#include "platform/voice/espeakvoice.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

#include <gtest/gtest.h>

#include "fakeservice.h"

namespace duskmarch {
namespace {

constexpr std::size_t blockframes = 512;
constexpr const char* longtext =
    "The alley is dark and wet, and somewhere above the rooftops a siren wails. Three men wait at "
    "the far end of it, and none of them has seen you yet.";

class EspeakVoiceTest : public testing::Test {
 protected:
  // What the next block sounds like; both sides must be the same.
  std::vector<float> block() {
    std::vector<float> left(blockframes);
    for (float& sample : left) sample = frame();
    return left;
  }
  float frame() {
    std::array<float, 2> mixed{};
    stream_->mix(mixed.data(), 1);
    EXPECT_EQ(mixed[0], mixed[1]);
    return mixed[0];
  }
  static float peak(const std::vector<float>& samples) {
    float loudest = 0;
    for (const float sample : samples) loudest = std::max(loudest, std::abs(sample));
    return loudest;
  }
  void waitforsound() {
    ASSERT_TRUE(eventually([&] { return peak(block()) > 0.1F; }));
  }
  // Everything from the first sample queued to the last, and none between that was not queued.
  std::vector<float> listen() {
    std::vector<float> heard;
    EXPECT_TRUE(eventually([&] {
      const bool last = voice_.idle();
      stream_->mix(nullptr, 0);
      while (!stream_->drained()) heard.push_back(frame());
      return last;
    }));
    return heard;
  }
  double length(std::string_view text) {
    voice_.speak(text);
    return static_cast<double>(listen().size());
  }

  // How often, for each sample, the sound crosses its middle.
  double brightness(std::string_view text) {
    voice_.speak(text);
    const std::vector<float> heard = listen();
    int crossings = 0;
    for (std::size_t n = 1; n < heard.size(); ++n) crossings += heard[n] * heard[n - 1] < 0 ? 1 : 0;
    return static_cast<double>(crossings) / static_cast<double>(heard.size());
  }

  const std::shared_ptr<SpeechStream> stream_ = std::make_shared<SpeechStream>();
  EspeakVoice voice_{stream_, [](std::string_view line) { ADD_FAILURE() << line; }};
};

TEST_F(EspeakVoiceTest, BeginsAtOnceAndAtAGoodLevel) {
  voice_.speak("Create a character");  // from the synthesizer it begins with 39 ms of silence
  const auto heard = listen();
  EXPECT_GT(peak({heard.begin(), heard.begin() + mixrate / 200}), 0.0005F);
  EXPECT_GT(peak(heard), 0.3F);
  EXPECT_LT(peak(heard), 0.71F);
}

TEST_F(EspeakVoiceTest, LosesNothingAtTheEnd) {
  std::size_t made = 0;
  Espeak::instance().say(longtext, wordsaminute(2), {}, [&](auto samples) {
    made += samples.size();
    return true;
  });
  const double expected = static_cast<double>(made) * mixrate / Espeak::instance().samplerate();
  EXPECT_NEAR(length(longtext), expected, 0.01 * expected);
}

TEST_F(EspeakVoiceTest, AnEmptyTextSilencesAtOnce) {
  voice_.speak(longtext);
  voice_.speakafter(longtext);
  waitforsound();
  voice_.speak("");
  const auto after = block();
  EXPECT_EQ(peak({after.begin() + mixrate / 400, after.end()}), 0);
  EXPECT_EQ(length(""), 0);
}

TEST_F(EspeakVoiceTest, TheLatestTextWinsAndIsWhole) {
  const double alone = length("Stop.");
  voice_.speak(longtext);
  waitforsound();
  voice_.speakafter(longtext);
  for (int key = 0; key < 5000; ++key) voice_.speak(longtext);
  EXPECT_NEAR(length("Stop."), alone, 0.05 * alone);
}

TEST_F(EspeakVoiceTest, TextsAfterFollowInOrderWithAPause) {
  voice_.setrate(10);  // so that all of it fits into what is kept ahead
  const double one = length("a");
  const double other = length("Stop.");
  voice_.speak("a");
  voice_.speakafter("");
  voice_.speakafter("Stop.");
  ASSERT_TRUE(eventually([&] { return voice_.idle(); }));
  const auto heard = listen();
  const double pause = mixrate / 10;
  EXPECT_NEAR(static_cast<double>(heard.size()), one + pause + other, 0.05 * (one + other));
  const std::vector<float> silence(mixrate / 11);
  const auto gap = std::search(heard.begin(), heard.end(), silence.begin(), silence.end());
  EXPECT_NEAR(static_cast<double>(gap - heard.begin()), one, 0.2 * one);
}

TEST_F(EspeakVoiceTest, EachRateIsFasterThanTheOneBefore) {
  double before = length(longtext);  // the start rate is 2
  voice_.setrate(1);
  EXPECT_GT(length(longtext), before);
  for (int rate = 3; rate <= 10; ++rate) {
    voice_.setrate(rate);
    const double now = length(longtext);
    EXPECT_LT(now, before) << "at rate " << rate;
    before = now;
  }
}

TEST_F(EspeakVoiceTest, SpeaksByTheVoiceThatIsChosen) {
  setenv("LC_ALL", "de_DE.UTF-8", 1);
  const std::vector<std::string> names = voice_.voicenames();
  unsetenv("LC_ALL");
  ASSERT_GT(names.size(), 10U);
  EXPECT_EQ(names[0], "English");
  EXPECT_EQ(names[1], "German");
  EXPECT_TRUE(names.back().starts_with("English, ")) << names.back();
  const double before = brightness(longtext);
  const double longbefore = length(longtext);
  const auto differs = [&] {
    return std::abs(brightness(longtext) / before - 1) > 0.1 ||
           std::abs(length(longtext) / longbefore - 1) > 0.05;
  };
  EXPECT_FALSE(differs());
  for (const std::string other : {"German", "English, whisper"}) {
    EXPECT_TRUE(voice_.setvoice(other));
    EXPECT_TRUE(differs()) << other;
  }
  EXPECT_FALSE(voice_.setvoice("Nobody"));
  EXPECT_TRUE(differs()) << "nothing has changed";
  EXPECT_TRUE(voice_.setvoice(""));
  EXPECT_FALSE(differs());
}

TEST_F(EspeakVoiceTest, SurvivesStrangeTexts) {
  std::string every;
  for (int i = 0; i < 3 * 256; ++i) every += static_cast<char>(i);
  EXPECT_GT(length(every), 0);
  EXPECT_EQ(length(std::string(3, '\0')), 0);
  EXPECT_GT(length("<b>bold</b>"), length("bold"));  // markup is text like any other
  EXPECT_NEAR(length("\001400S bold"), length(" 400S bold"), 0.05 * length("bold"));
}

TEST_F(EspeakVoiceTest, ASpaceOrAMarkByItselfIsToldByItsName) {
  constexpr std::pair<const char*, const char*> rows[] = {
      {" ", "space"}, {",", "comma"}, {"\t", "space"}, {"\u2014", "dash"}, {"}", "close brace"}};
  for (const auto& [text, name] : rows)
    EXPECT_NEAR(length(text), length(name), 0.01 * length(name)) << text;
  EXPECT_LT(length("Joe, "), length("Joe comma"));
}

TEST_F(EspeakVoiceTest, AHugeTextCanBeCutOff) {
  std::string huge;
  while (huge.size() < 5'000'000) huge += longtext;
  voice_.speak(huge);
  waitforsound();
  EXPECT_TRUE(voice_.setvoice(voice_.voicenames().back()));
  voice_.speak(huge);
  waitforsound();
  EXPECT_LT(length("Stop."), mixrate);
  voice_.speak(huge);  // and the voice can end in the middle of it
}

TEST_F(EspeakVoiceTest, ANewVoiceTakesOver) {
  auto earlier = std::make_unique<EspeakVoice>(stream_, [](std::string_view) {});
  earlier->speak(longtext);
  waitforsound();
  const double alone = length("Stop.");
  voice_.speak("Stop.");
  earlier.reset();
  EXPECT_NEAR(static_cast<double>(listen().size()), alone, 0.05 * alone);
}

TEST(SpeechStreamTest, HoldsHalfASecondAndFadesWhatIsCutOff) {
  SpeechStream stream;
  const std::vector<float> second(mixrate, 0.5F);
  const auto old = stream.cut();
  EXPECT_FALSE(stream.speaks());
  EXPECT_EQ(stream.offer(old, second), 24000U);
  EXPECT_TRUE(stream.speaks());
  EXPECT_EQ(stream.offer(old, second), 0U);
  std::vector<float> mixed(2 * 200, 0.125F);
  stream.mix(mixed.data(), 200);
  EXPECT_EQ(mixed, std::vector<float>(2 * 200, 0.625F));
  const auto next = stream.cut();
  EXPECT_EQ(stream.offer(old, second), std::nullopt);
  EXPECT_EQ(stream.offer(next, std::vector<float>(2, 0.25F)), 2U);
  mixed.assign(2 * 200, 0);
  stream.mix(mixed.data(), 200);
  EXPECT_NEAR(mixed[2], 0.25 + 0.5 * 0.9 * 0.9, 1e-6);
  EXPECT_NEAR(mixed[4], 0.5 * 0.9 * 0.9 * 0.9, 1e-6);
  EXPECT_EQ(mixed[2 * 150], 0);
  EXPECT_FALSE(stream.speaks());
}

// The synthesizer's library would ask a sound server; one that is frozen takes the connection and
// never answers.
TEST(EspeakTest, NeedsNoSoundServer) {
  FakeService frozen;
  frozen.freeze(true);
  frozen.start();
  setenv("PULSE_SERVER", frozen.path().c_str(), 1);
  EXPECT_GT(Espeak::instance().samplerate(), 0);
}

}  // namespace
}  // namespace duskmarch
