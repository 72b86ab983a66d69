// What the mixer hears of the voice's stream besides its samples.
#include "platform/voice/speechstream.h"

#include <gtest/gtest.h>

#include "platform/sound/mixer.h"

namespace duskmarch {
namespace {

TEST(SpeechStreams, CuesAreLoweredAsLongAsThereIsSpeechToMix) {
  Mixer mixer;
  const auto stream = std::make_shared<SpeechStream>();
  mixer.addsource(stream);
  mixer.cues().start(
      {{.clip = std::make_shared<const Clip>(Clip{1, std::vector<float>(96000, 0.5F)})}});
  const auto level = [&](std::size_t frames) {
    std::vector<float> samples(2 * frames);
    mixer.render(samples.data(), frames);
    return samples.back();
  };
  const std::vector<float> pause(4800);  // as between two words
  EXPECT_FLOAT_EQ(level(100), 0.5F);
  stream->offer(stream->cut(), pause);
  EXPECT_FLOAT_EQ(level(4000), 0.25F);
  EXPECT_FLOAT_EQ(level(800), 0.25F);
  EXPECT_FLOAT_EQ(level(24000), 0.5F);
  stream->offer(stream->cut(), pause);
  level(100);
  stream->cut();
  EXPECT_FLOAT_EQ(level(24000), 0.5F);
}

}  // namespace
}  // namespace duskmarch
