// From the game's calls to the mixer's samples.
#include <cmath>
#include <set>
#include <span>

#include "../harness.h"
#include "audio/cuetable.h"
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

  ProgramFolder folder;
  std::shared_ptr<Mixer> mixer = std::make_shared<Mixer>();
  MixedSounds sounds{mixer};
  CueDevice& cues = sounds.cues();
};

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

}  // namespace
}  // namespace duskmarch
