// The scripted front end: its commands, and whole transcripts kept as files.
#include <cstdlib>

#include "harness.h"
#include "platform/replay/seednumber.h"

namespace duskmarch {
namespace {

using Lines = std::vector<std::string>;

TEST(Replay, LinesThatAreNoCommandDoNothing) {
  for (const std::string line : {"key", "key x", "key 1 2 3", "key 99999999999", "seed", "seed 1x",
                                 "jump", "state now", "load x", "Key 13", " key 13"}) {
    Player player;
    player.events();
    EXPECT_THROW(player.session().perform(line), BadCommand) << line;
    EXPECT_EQ(player.events(), Lines{}) << line;
  }
}

TEST(Replay, CommandsAreEchoedAsTheyStand) {
  Player player;
  for (const std::string line : {"", "# note", "\r"}) {
    EXPECT_EQ(player.during([&] { player.session().perform(line); }), Lines{});
  }
  EXPECT_EQ(player.during([&] { player.session().perform("answer  a\\tb\\\\\\x\r"); }),
            Lines{"> answer  a\\tb\\\\\\x"});
  EXPECT_EQ(player.session().replay.dialogs.answers.back(), " a\tb\\\\x");
  EXPECT_EQ(player.during([&] { player.session().perform("key  78  1"); }),
            (Lines{"> key  78  1", "voice\tYou only have ."}));
}

TEST(Replay, SeedsAreTakenModulo32Bits) {
  EXPECT_EQ(parseseed("4294967297"), 1u);
  EXPECT_EQ(parseseed("-1"), 4294967295u);
  EXPECT_EQ(parseseed("99999999999999999999"), 1661992959u);
  EXPECT_EQ(parseseed("-"), std::nullopt);
}

TEST(Replay, NothingFollowsTheEnd) {
  Player player;
  for (const int code : {key::escape, key::enter}) player.press(code);
  EXPECT_TRUE(player.game().ended);
  EXPECT_EQ(player.press(key::down), Lines{});
}

// A script may come with the saved game that it loads.
std::string played(std::filesystem::path script) {
  ProgramFolder folder;
  ReplaySession session({.folder = folder.path});
  std::ifstream lines(script);
  if (exists(script.replace_extension(".sav"))) copy_file(script, folder.path / "game.sav");
  for (std::string line; !session.game.ended && std::getline(lines, line);) session.perform(line);
  return session.replay.transcript.text();
}

// With UPDATE_TRANSCRIPTS set in the environment the transcripts are written anew, to be read and
// compared by a person.
TEST(Replay, ScriptsGiveTheirTranscripts) {
  int scripts = 0;
  for (const auto& entry : std::filesystem::directory_iterator(TEST_FOLDER "/transcripts")) {
    if (entry.path().extension() != ".script") continue;
    ++scripts;
    std::filesystem::path transcript = entry.path();
    transcript.replace_extension(".transcript");
    const std::string found = played(entry.path());
    if (std::getenv("UPDATE_TRANSCRIPTS") != nullptr) {
      std::ofstream(transcript, std::ios::binary) << found;
    }
    EXPECT_EQ(found, filetext(transcript)) << entry.path();
  }
  EXPECT_GT(scripts, 0);
}

}  // namespace
}  // namespace duskmarch
