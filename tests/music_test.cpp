// The two music players: what is asked of the desktop for them.
#include "audio/music.h"

#include <algorithm>

#include "harness.h"

namespace duskmarch {
namespace {

using Calls = std::vector<std::string>;

struct NotedGraph : MusicGraph {
  NotedGraph(Calls& list, std::string file) : calls(list), name(std::move(file)) {}
  ~NotedGraph() override { note("end"); }
  void setvolume(int volume) override { note("volume " + std::to_string(volume)); }
  void setbalance(int balance) override { note("balance " + std::to_string(balance)); }
  void setposition(double seconds) override { note("position " + std::to_string(int(seconds))); }
  void run() override { note("run"); }
  void note(const std::string& what) { calls.push_back(name + " " + what); }
  Calls& calls;
  std::string name;
};

// Where letter case does not count in names of files, a path keeps the letters that it was asked
// by.
std::string foundstem(const std::filesystem::path& file) {
  std::string stem = file.stem().string();
  std::ranges::transform(stem, stem.begin(), [](char c) { return static_cast<char>(c | 0x20); });
  return stem;
}

struct MusicSystem : System {
  explicit MusicSystem(Calls& list) : calls(list) {}
  std::filesystem::path programfolder() const override { return {}; }
  std::uint32_t secondssincemidnight() const override { return 0; }
  std::unique_ptr<Voice> createvoice() override { return nullptr; }
  std::unique_ptr<JawsApi> createjaws() override { return nullptr; }
  std::unique_ptr<SoundDevice> opensound() override { return nullptr; }
  std::unique_ptr<MusicGraph> createmusic(const std::filesystem::path& file) override {
    if (file.stem() == "bad") throw PlatformError("no music");
    return std::make_unique<NotedGraph>(calls, foundstem(file));
  }
  bool readerattached() const override { return true; }
  void end() override {}
  Calls& calls;
};

class MusicRules : public testing::Test {
 protected:
  MusicRules() {
    game.programfolder = game.filesfolder = folder.path;
    for (const char* name : {"one.mp3", "two.MP3", "bad.mp3", "one.wav"}) folder.write(name, "");
  }
  template <class Action>
  Calls during(Action action) {
    calls.clear();
    action();
    return calls;
  }

  Calls calls;
  ProgramFolder folder;
  ReplayDesktop replay{{.folder = folder.path}};
  MusicSystem system{calls};
  Desktop desktop{system, replay.window, replay.summary, replay.story, replay.help, replay.dialogs};
  Game game{desktop};
};

TEST_F(MusicRules, LoadingSetsTheGraphUpAndStartsIt) {
  EXPECT_EQ(
      during([&] { mp3load(game, 0, "\\ONE.mp3"); }),
      (Calls{"one volume 0", "one volume -5000", "one balance 0", "one position 0", "one run"}));
  EXPECT_EQ(game.music.mp3files[0], "\\ONE.mp3");
  EXPECT_EQ(game.music.mp3volumes[0], 0);
  game.music.musicvolume = 60;
  int volume = -1;
  EXPECT_EQ(during([&] { mp3load(game, 1, "two.MP3", volume); }),
            (Calls{"two volume 0", "two balance 0", "two position 0", "two run"}));
  EXPECT_EQ(volume, 60);
  EXPECT_EQ(game.music.mp3volumes[1], 60);
  EXPECT_EQ(during([&] { mp3open(game, 0, "two.MP3", 100); })[0], "one end");  // player 1 goes on
}

TEST_F(MusicRules, APercentageBecomesAVolumeWithinTheRange) {
  const std::pair<int, std::string> cases[] = {{100, "0"},   {50, "-2500"}, {1, "-4950"},
                                               {0, "-5000"}, {101, "0"},    {-2, "-5000"}};
  for (const auto& c : cases) {
    const Calls asked = during([&] { mp3open(game, 0, "/one.mp3", c.first); });
    EXPECT_EQ(asked[asked.size() - 4], "one volume " + c.second) << c.first;
  }
  EXPECT_EQ(during([&] { mp3setvolume(game, 0, 7); }), Calls{"one volume 0"});
  EXPECT_EQ(during([&] { mp3setvolume(game, 0, -5001); }), Calls{"one volume -5000"});
}

TEST_F(MusicRules, WhatIsNoMp3ByNameOrNoPlayerIsRefusedBeforeAnythingChanges) {
  mp3open(game, 0, "one.mp3", 100);
  const auto refused = [&] {
    for (const char* name : {"one.wav", "mp3", "", "one.mp3 "}) {
      EXPECT_FALSE(mp3open(game, 0, name, 100)) << name;
    }
    for (const int z : {-1, 2}) {
      EXPECT_FALSE(mp3open(game, z, "one.mp3", 100) || mp3play(game, z));
      mp3setvolume(game, z, 0);
    }
  };
  EXPECT_EQ(during(refused), Calls{});
}

TEST_F(MusicRules, AFileThatCannotBePlayedQuietlyEndsTheMusicBeforeIt) {
  for (const char* name : {"bad.mp3", "none.mp3"}) {
    mp3open(game, 0, "one.mp3", 100);
    EXPECT_EQ(during([&] { EXPECT_FALSE(mp3open(game, 0, name, 50)); }), Calls{"one end"});
    EXPECT_FALSE(mp3play(game, 0));
    EXPECT_EQ(game.music.mp3files[0], "one.mp3");
  }
  EXPECT_EQ(folder.read("debuglog.txt"), "");
}

TEST_F(MusicRules, MusicSwitchedOffLoadsNothingAndPlayer0DoesNotStart) {
  mp3load(game, 0, "one.mp3");
  mp3load(game, 1, "two.MP3");
  game.music.musicoff = 1;
  EXPECT_FALSE(mp3open(game, 1, "one.mp3", 100));
  EXPECT_EQ(during([&] { EXPECT_FALSE(mp3play(game, 0)); }), Calls{});
  EXPECT_EQ(during([&] { EXPECT_TRUE(mp3play(game, 1)); }), Calls{"two run"});
}

}  // namespace
}  // namespace duskmarch
