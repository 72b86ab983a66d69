// From the game's calls to the mixer's samples, and to the lines of a transcript.
#include <cmath>
#include <set>
#include <span>

#include "../harness.h"
#include "audio/cuetable.h"
#include "platform/replay/replayengines.h"
#include "platform/sound/mixedsounds.h"
#include "platform/sound/wavfile.h"

namespace duskmarch {
namespace {

using Samples = std::vector<float>;

class CueDevices : public testing::Test {
 protected:
  Samples render(std::size_t frames) const {
    Samples samples(2 * frames);
    mixer->render(samples.data(), frames);
    return samples;
  }
  static Cue cue(std::string_view name, int delay = 0) { return {.name = name, .delay = delay}; }
  std::filesystem::path file(std::string_view name) const {
    return folder.path / fileof(*findcue(name)).substr(1);
  }
  Samples original(std::string_view name) const { return readwav(file(name)).samples; }
  void play(std::span<const Cue> what) {
    cues.playcues(what, [&](std::string_view name) { return file(name); });
  }
  // What is reported by playing it from a file of its name in the folder.
  std::string problem(std::span<const Cue> what) {
    try {
      cues.playcues(
          what, [&](std::string_view name) { return folder.path / (std::string(name) + ".wav"); });
      return "";
    } catch (const PlatformError& error) {
      return error.what();
    }
  }

  ProgramFolder folder;
  std::shared_ptr<Mixer> mixer = std::make_shared<Mixer>();
  MixedSounds sounds{mixer};
  CueDevice& cues = sounds.cues();
};

TEST_F(CueDevices, CuesAreHeardAfterTheirDelaysFromOneMoment) {
  render(77);
  const Cue order[] = {cue("step", 120), cue("map-edge"), cue("hit-hero", 240)};
  play(order);
  const Samples heard = render(48000);
  const std::pair<std::string_view, std::size_t> places[] = {
      {"map-edge", 0}, {"step", 5760}, {"hit-hero", 11520}};
  Samples wanted(48000);
  for (const auto& [name, place] : places) {
    const Samples sound = original(name);
    for (std::size_t n = 0; n < sound.size(); ++n) wanted[place + n] += sound[n];
  }
  for (std::size_t n = 0; n < wanted.size(); ++n) {
    ASSERT_NEAR(heard[2 * n], wanted[n], 1e-5) << n;
    ASSERT_NEAR(heard[2 * n + 1], wanted[n], 1e-5) << n;
  }
}

TEST_F(CueDevices, AFileIsReadOnceAndABadOneReportedOnce) {
  folder.write(
      "good.wav",
      std::string(std::istreambuf_iterator(std::ifstream(file("step"), std::ios::binary).rdbuf()),
                  {}));
  folder.write("bad.wav", "RIFF");
  const Cue all[] = {cue("bad"), cue("missing"), cue("good")};
  const std::string reported = problem(all);
  EXPECT_TRUE(reported.starts_with("bad: ")) << reported;
  EXPECT_NE(reported.find("; missing: "), std::string::npos) << reported;
  const Samples heard = render(20000);
  EXPECT_NE(heard, Samples(40000));
  EXPECT_EQ(problem({all, 2}), "");
  EXPECT_EQ(render(20000), Samples(40000));
  std::filesystem::remove(folder.path / "good.wav");
  EXPECT_EQ(problem(all), "");
  EXPECT_EQ(render(20000), heard);
}

TEST_F(CueDevices, AllFilesAreAskedForBeforeTheyAreWanted) {
  std::multiset<std::string> asked;
  const auto asking = [&](std::string_view name) {
    asked.emplace(name);
    return file(name);
  };
  const Cue first[] = {cue("step")};
  cues.playcues(first, asking);
  EXPECT_EQ(std::set(asked.begin(), asked.end()).size(), cuetable().size());
  for (const CueRow& row : cuetable()) {
    const Cue next[] = {cue(row.name)};
    cues.playcues(next, asking);
  }
  EXPECT_EQ(asked.size(), cuetable().size());
}

TEST_F(CueDevices, VolumesAreTwoDecibelsAStepAndZeroIsSilence) {
  const Samples full = original("map-edge");
  for (const auto& [volume, decibels] : {std::pair(10, 0.0), {7, -6.0}, {1, -18.0}, {0, -200.0}}) {
    cues.setcuevolume(volume);
    const Cue played[] = {cue("map-edge")};
    play(played);
    const Samples heard = render(20000);
    for (std::size_t n = 0; n < full.size(); ++n) {
      ASSERT_NEAR(heard[2 * n], full[n] * std::pow(10, decibels / 20), 1e-5) << volume;
    }
  }
}

TEST_F(CueDevices, AStopEndsCuesAndLeavesAmbienceAndBuffersAlone) {
  const std::filesystem::path loop = folder.path / "sounds/ambience/dock.wav";
  const auto dockloop = [&](std::string_view name) { return name == "dock" ? loop : file(name); };
  cues.setambience("dock", 0, dockloop);
  render(24000);
  cues.setambience("dock", 0, dockloop);  // goes on where it is
  const Cue played[] = {cue("victory"), cue("defeat", 500)};
  play(played);
  render(9600);
  sounds.load(2, "step", file("step"));
  cues.stopcues();
  render(2400);
  sounds.play(2, false);
  const Samples dock = readwav(loop).samples, step = original("step"), heard = render(48000);
  for (std::size_t n = 0; n < 48000; ++n) {
    const float effect = n < step.size() ? step[n] : 0;
    ASSERT_NEAR(heard[2 * n], dock[36000 + n] + effect, 1e-5) << n;
  }
  cues.setambience("", 0, dockloop);
  render(24000);
  EXPECT_EQ(render(1000), Samples(2000));
  const auto noloop = [&](std::string_view) { return folder.path / "none.wav"; };
  EXPECT_THROW(cues.setambience("none", 0, noloop), PlatformError);
}

TEST(ReplayCueLines, ACueAndAChangeOfAmbienceAreLines) {
  Transcript transcript;
  ReplaySound sound(transcript);
  const Cue order[] = {{.name = "step", .pan = -60, .pitch = 50},
                       {.name = "hit-hero", .pan = 20, .pitch = -100, .delay = 120}};
  sound.cues().playcues(order, {});
  sound.cues().stopcues();
  for (const std::string_view name : {"", "dock", "dock", ""}) {
    sound.cues().setambience(name, 0, {});
  }
  EXPECT_EQ(transcript.text(),
            "cue\tstep\t-60\t50\t0\ncue\thit-hero\t20\t-100\t120\nambience\tdock\nambience\t\n");
}

}  // namespace
}  // namespace duskmarch
