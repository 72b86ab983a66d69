#include "soak.h"

#include "harness.h"
#include "invariants.h"

namespace duskmarch {
namespace {

// What a soak reached, so that one that never leaves the main menu does not pass for a soak.
struct Reached {
  std::array<int, 6> screens{};
  int turns = 0, victories = 0, defeats = 0, saves = 0;
};

void note(const Game& game, const std::string& transcript, Reached& reached) {
  ++reached.screens[static_cast<std::size_t>(game.menuname)];
  reached.turns += transcript.find("-End of turn") != std::string::npos ? 1 : 0;
  reached.victories += transcript.find("message\tVictory") != std::string::npos ? 1 : 0;
  reached.defeats += transcript.find("message\tDefeat") != std::string::npos ? 1 : 0;
  reached.saves += transcript.find("saved.wav") != std::string::npos ? 1 : 0;
}

// One program run after the other in the same folder, until `lines` lines are played.
void soak(std::uint32_t seed, int lines, Reached& reached) {
  ProgramFolder folder;
  RandomScript script(seed);
  while (lines > 0) {
    ReplaySession session(soakoptions(folder.path, seed));
    for (; lines > 0 && !session.game.ended; --lines) {
      const std::string line = script.line();
      session.perform(line);
      ASSERT_EQ(brokeninvariant(session.game), "") << "seed " << seed << " after " << line;
      note(session.game, session.replay.transcript.text(), reached);
      session.replay.transcript.clear();
    }
  }
}

TEST(Soak, AnyKeysInAnyScreen) {
  Reached reached;
  for (std::uint32_t seed = 1; seed <= 12; ++seed) soak(seed, 25'000, reached);
  for (const int visits : reached.screens) EXPECT_GT(visits, 100);
  EXPECT_GT(reached.turns, 1000);
  EXPECT_GT(reached.victories, 0);
  EXPECT_GT(reached.defeats, 0);
  EXPECT_GT(reached.saves, 0);
}

TEST(Soak, TheSameScriptGivesTheSameTranscript) {
  for (std::uint32_t seed = 1; seed <= 20; ++seed) {
    std::string transcripts[2];
    for (std::string& transcript : transcripts) {
      ProgramFolder folder;
      ReplaySession session({.folder = folder.path, .seed = seed});
      RandomScript script(seed);
      for (int n = 0; n < 500; ++n) session.perform(script.line());
      session.perform("state");
      transcript = session.replay.transcript.text();
    }
    EXPECT_EQ(transcripts[0], transcripts[1]);
  }
}

}  // namespace
}  // namespace duskmarch
