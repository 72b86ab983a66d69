// What the player likes: descriptions and voices, kept in comfort.ini.
#include "shell/speech/comfort.h"

#include "campaignkeys.h"
#include "shell/startup.h"

namespace duskmarch {
namespace {

constexpr std::string_view welcome =
    "Welcome to Duskmarch, version 0.1 testing 3, by Quorvane.  Main menu.";

Spoken atstart(const std::filesystem::path& folder, Player::Events* events = nullptr) {
  Player player({.folder = folder});
  const Player::Events all = player.events();
  if (events != nullptr) *events = all;
  return {all.at(all.size() - 2)};  // the last is the rain of the menus
}

TEST(Comfort, DescriptionsAreLeftOutUntilTheyAreWantedAgain) {
  const ProgramFolder folder;
  {
    Player player({.folder = folder.path});
    player.game().mob(1).upgradepoints = 4;
    EXPECT_EQ(player.spokenby(key::f2), Spoken{"Short descriptions."});
  }
  EXPECT_EQ(folder.read("comfort.ini"), " 0 \r\n 7 \r\n 4 \r\n\r\n");
  Player player({.folder = folder.path});
  perform(player, 1);
  recruit(player, 1, "Owl");
  player.game().mob(1).upgradepoints = 4;
  perform(player, 1);
  expectspoken(player,
               {{key::down,
                 "Owl has 8 health.  For 5 upgrade points, raise his max health by 5.  4 points "
                 "to spend."},
                {key::down,
                 "Owl's fighting skill is 4.  For 5 upgrade points, raise his skill by 1.  4 "
                 "points to spend."},
                {key::down,
                 "Ability Dive.  Owl can use this 1 time per mission.  Increase this by 1 for a "
                 "cost of 3 upgrade points.  4 points to spend."},
                {key::f2, "Full descriptions."}});
  EXPECT_NE(player.spokenby(key::r).front().find("points.  Even if you are engaged"),
            std::string::npos);
}

TEST(Comfort, VoicesFollowEachOtherAndSayTheirNames) {
  const ProgramFolder folder;
  {
    Player player({.folder = folder.path});
    player.press(key::f11);
    player.press(key::f11);
    EXPECT_TRUE(folder.read("comfort.ini").ends_with("\r\n\r\n")) << "the default has no name";
    player.press(key::f11, modifier::shift);
  }
  Player::Events events;
  EXPECT_EQ(atstart(folder.path, &events), Spoken{"voice\t" + std::string(welcome)});
  EXPECT_EQ(std::ranges::count(events, "voicename\tSecond"), 1);
  folder.write("comfort.ini", "1\n7\n4\nThird\n");
  EXPECT_EQ(atstart(folder.path),
            Spoken{"voice\t" + std::string(welcome) + "  The voice Third is gone."});
  Player mute({.folder = folder.path, .voice = false});
  EXPECT_EQ(mute.press(key::f11), Player::Events{"title\tThere is no other voice."});
}

// Names voices that it does not have.
class PoorVoice : public Voice {
 public:
  explicit PoorVoice(std::string_view refused) : refused_(refused) {}
  void setrate(int) override {}
  void speak(std::string_view) override {}
  void speakafter(std::string_view) override {}
  void hush() override {}
  std::vector<std::string> voicenames() override { return {"First", "Second", "Third"}; }
  bool setvoice(std::string_view name) override {
    return refused_.find(name) == std::string_view::npos;
  }

 private:
  std::string_view refused_;
};

TEST(Comfort, VoicesThatAreGoneArePassedBy) {
  Player player;
  const auto said = [&](std::string_view refused) {
    player.game().sapivoice = std::make_unique<PoorVoice>(refused);
    player.press(key::f11);
    return player.game().saidlines[1];
  };
  EXPECT_EQ(said("Second"), "The voice Second is gone.  Third");
  EXPECT_EQ(said(""), "First");
  EXPECT_EQ(said("Second Third"),
            "The voice Second is gone.  The voice Third is gone.  There is no other voice.");
}

TEST(Comfort, BadValuesKeepTheirDefaults) {
  for (const auto& [text, descriptions, cues, ambience] :
       std::vector<std::tuple<std::string, bool, int, int>>{{"", true, 7, 4},
                                                            {" 0 \r\n", false, 7, 4},
                                                            {"2\n11\n-1\n", true, 7, 4},
                                                            {"x\n3.9\n0", true, 3, 0},
                                                            {"0\n10\n\n\nmore\n", false, 10, 4}}) {
    const ProgramFolder folder;
    folder.write("comfort.ini", text);
    Player player({.folder = folder.path});
    EXPECT_EQ(player.events().at(1), "voice\t" + std::string(welcome)) << text;
    EXPECT_EQ(player.game().fulldescriptions, descriptions) << text;
    EXPECT_EQ(player.game().cuevolume, cues) << text;
    EXPECT_EQ(player.game().ambiencevolume, ambience) << text;
  }
}

TEST(Comfort, WhatCannotBeKeptIsToldOnce) {
  const ProgramFolder folder;
  std::filesystem::create_directories(folder.path / "comfort.ini" / "full");
  Player player({.folder = folder.path});
  expectspoken(player, {{key::f2, "Short descriptions.  These settings cannot be kept."},
                        {key::f2, "Full descriptions."}});
}

TEST(FirstStart, AFoundReaderIsToldOfWithoutCuttingOff) {
  const ProgramFolder folder;
  const std::string hint = "voice\tPress Tab once, and your screen reader speaks instead.";
  const auto found = [](Player& player) {
    return player.during([&] { readerfound(player.game()); });
  };
  Player first({.folder = folder.path});
  EXPECT_EQ(found(first), Player::Events{hint});
  EXPECT_EQ(found(first), Player::Events{}) << "once";
  EXPECT_EQ(first.spokenby(key::rightbracket), Spoken{"Rev 1, " + std::string(welcome)});
  Player hasty({.folder = folder.path});
  hasty.press(key::down);
  EXPECT_EQ(found(hasty), Player::Events{}) << "a key was pressed";
  hasty.press(key::pageup);
  Player second({.folder = folder.path});
  EXPECT_EQ(found(second), Player::Events{}) << "settings were kept";
}

}  // namespace
}  // namespace duskmarch
