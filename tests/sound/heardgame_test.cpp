// The game as its player hears it: keys go in, and what comes out is read off the mixer's samples.
#include <algorithm>
#include <cmath>
#include <set>

#include "../ground.h"
#include "../harness.h"
#include "../soak.h"
#include "audio/cues.h"
#include "heroturn/dooption.h"
#include "platform/sound/levels.h"
#include "platform/sound/mixedsounds.h"
#include "platform/sound/wavfile.h"
#include "resolution/endturn.h"
#include "shell/speech/selfreading.h"

namespace duskmarch {
namespace {

using Samples = std::vector<float>;

constexpr std::size_t framesamillisecond = mixrate / 1000;
constexpr std::size_t threeseconds = 3 * std::size_t{mixrate};

class HeardGame : public testing::Test {
 protected:
  HeardGame() {
    game.ambiencevolume = 0;
    game.dsound = std::make_unique<MixedSounds>(mixer);
    setcuevolumes(game);
  }
  Samples render(std::size_t frames) const {
    Samples samples(2 * frames);
    mixer->render(samples.data(), frames);
    return samples;
  }
  static Samples original(cue::Id id) {
    return readwav(SOURCE_FOLDER + fileof(cuerow(id))).samples;
  }

  std::shared_ptr<Mixer> mixer = std::make_shared<Mixer>();
  Player player;
  Game& game = player.game();
};

float highest(const Samples& samples) {
  float most = 0;
  for (const float sample : samples) most = std::max(most, std::abs(sample));
  return most;
}

TEST_F(HeardGame, AnOrderIsHeardWhereItHappensOneThingAfterAnother) {
  struct Part {
    cue::Id cue;
    std::size_t delay;  // milliseconds
    double left, right;
  };
  // On 4 columns the third lies 26 hundredths to the right, and the fourth 80.
  const Part parts[] = {{cue::kick, 0, std::sqrt(0.74), std::sqrt(1.26)},
                        {cue::hitenemy, 120, std::sqrt(0.2), std::sqrt(1.8)},
                        {cue::dazed, 240, std::sqrt(0.2), std::sqrt(1.8)}};
  arrangefor(game, "Vesper 2,2 20 4 | Tony 3,2 16 3", "Kick Tony");
  dooption(game, "Kick Tony");
  const Samples heard = render(72000);
  std::vector<double> wanted(heard.size());
  for (const Part& part : parts) {
    const Samples sound = original(part.cue);
    const double level = std::pow(10, (cuerow(part.cue).loudness / 100.0 - 6) / 20);  // "Sounds 7."
    for (std::size_t n = 0; n < sound.size(); ++n) {
      const std::size_t at = 2 * (part.delay * framesamillisecond + n);
      wanted[at] += level * part.left * sound[n];
      wanted[at + 1] += level * part.right * sound[n];
    }
  }
  for (std::size_t n = 0; n < heard.size(); ++n) ASSERT_NEAR(heard[n], wanted[n], 1e-5) << n;
}

TEST_F(HeardGame, AnyKeyEndsWhatIsLeftOfAnEndOfTurn) {
  const std::function<void()> keys[] = {
      [&] { player.press(key::ctrl); }, [&] { player.press(key::r); },
      [&] { player.press(250); },  // one that does nothing
      [&] { boxkey(game, key::ctrl); }, [&] { boxkey(game, 0); },
  };
  arrange(game, "Vesper 1,1 20 4 | Tony 4,3 90 3 | Moe 4,1 90 3 | Al 3,3 90 3");
  for (const auto& pressakey : keys) {
    endturn(game);
    EXPECT_GT(highest(render(4800)), 0.01);  // more begin 0.15 seconds apart
    pressakey();
    EXPECT_GT(highest(render(10)), 0) << "no click";
    render(mixrate / 50);
    EXPECT_EQ(highest(render(threeseconds)), 0);
  }
}

TEST_F(HeardGame, AnyKeysInAnyScreenKeepTheSamplesInRange) {
  RandomScript script(15);
  float loudest = 0;
  for (int n = 0; n < 5000 && !game.ended; ++n) {
    const std::string line = script.line();
    player.session().perform(line);
    const Samples heard = render(static_cast<std::size_t>(n) % 7 * 480 + 1);
    for (const float sample : heard) ASSERT_TRUE(sample >= -1 && sample <= 1) << line;
    loudest = std::max(loudest, highest(heard));
  }
  EXPECT_GT(loudest, 0.1);
  EXPECT_EQ(player.folder().read("debuglog.txt").find("error in cues"), std::string::npos);
  stopcues(game);
  setambience(game, "");
  render(mixrate);
  EXPECT_EQ(highest(render(threeseconds)), 0);
}

TEST_F(HeardGame, AFileThatIsMissingOrBadIsALineInTheLogAndSilence) {
  const auto cues = player.folder().path / "sounds/cues";
  std::filesystem::remove_all(cues);  // the links to them
  std::filesystem::create_directory(cues);
  player.folder().write("sounds/cues/gun-fired.wav", "RIFF and no more");
  const auto before = player.folder().read("debuglog.txt");
  for (int times = 0; times < 2; ++times) {
    arrange(game, "Vesper 1,1 90 4 | Tito 4,3 16 3 gun plans[Shoot,1,1]");
    EXPECT_FALSE(player.spoken([&] { endturn(game); }).empty());
    EXPECT_EQ(highest(render(threeseconds)), 0);
    game.mobcount = 0;
  }
  const std::string log = player.folder().read("debuglog.txt").substr(before.size());
  EXPECT_EQ(std::ranges::count(log, '\n'), 1) << log;
  EXPECT_TRUE(log.starts_with("error in cues: gun-fired: ")) << log;
  EXPECT_NE(log.find("; heroes-turn: "), std::string::npos) << log;
}

// What a device does beside that.
class CueDevices : public HeardGame {
 protected:
  CueDevices() {
    cues.setcuevolume(10);
    cues.setambiencevolume(10);
  }
  static std::filesystem::path file(std::string_view name) {
    return SOURCE_FOLDER + fileof(*findcue(name));
  }

  MixedSounds sounds{mixer};
  CueDevice& cues = sounds.cues();
};

TEST_F(CueDevices, AllFilesAreAskedForBeforeTheyAreWanted) {
  std::multiset<std::string> asked;
  const auto asking = [&](std::string_view name) {
    asked.emplace(name);
    return file(name);
  };
  const Cue first[] = {{.name = "step"}};
  cues.playcues(first, asking);
  EXPECT_EQ(std::set(asked.begin(), asked.end()).size(), cuetable().size());
  for (const CueRow& row : cuetable()) {
    const Cue next[] = {{.name = row.name}};
    cues.playcues(next, asking);
  }
  EXPECT_EQ(asked.size(), cuetable().size());
}

TEST_F(CueDevices, AStopEndsCuesAndLeavesAmbienceAndBuffersAlone) {
  const std::filesystem::path loop = SOURCE_FOLDER "/sounds/ambience/dock.wav";
  const auto dockloop = [&](std::string_view name) { return name == "dock" ? loop : file(name); };
  cues.setambience("dock", 0, dockloop);
  render(24000);
  cues.setambience("dock", 0, dockloop);  // goes on where it is
  const Cue played[] = {{.name = "victory"}, {.name = "defeat", .delay = 500}};
  cues.playcues(played, file);
  render(9600);
  sounds.load(2, "step", file("step"));
  cues.stopcues();
  render(2400);
  sounds.play(2, false);
  const Samples dock = readwav(loop).samples, step = original(cue::step), heard = render(48000);
  for (std::size_t n = 0; n < 48000; ++n) {
    const float effect = n < step.size() ? step[n] : 0;
    ASSERT_NEAR(heard[2 * n], dock[36000 + n] + effect, 1e-5) << n;
  }
  cues.setambience("", 0, dockloop);
  render(24000);
  EXPECT_EQ(render(1000), Samples(2000));
  const auto noloop = [&](std::string_view) { return player.folder().path / "none.wav"; };
  EXPECT_THROW(cues.setambience("none", 0, noloop), PlatformError);
}

}  // namespace
}  // namespace duskmarch
