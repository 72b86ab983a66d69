// What the game keeps by itself, and F8.
#include <filesystem>

#include "campaignkeys.h"
#include "values/textfile.h"

namespace duskmarch {
namespace {

constexpr std::string_view kept = "autosave.sav";
constexpr std::string_view damaged = "Error loading game.";

void closepage(Player& player) {
  player.press(key::escape);
}

void begincampaign(Player& player) {
  perform(player, 1);
  recruit(player, 1, "Owl");
}

void beginmission(Player& player) {
  perform(player, 4, modifier::shift);
  closepage(player);
}

// Ends the mission by what its people are like, at the next end of turn.
Spoken endmission(Player& player, int loser) {
  for (int slot = 1; slot <= player.game().mobcount; ++slot) {
    Mob& mob = player.game().mob(slot);
    if (mob.aliance != loser) continue;
    mob.health = 0;
    mob.spawntime = 0;
  }
  player.press(key::e, modifier::shift);
  return player.spokenby(key::enter);
}

TEST(Autosave, KeepsWhatIsDoneInTheHideout) {
  Player player;
  begincampaign(player);
  const std::string created = player.folder().read(kept);
  EXPECT_NE(created.find("Owl"), std::string::npos);
  EXPECT_FALSE(std::filesystem::exists(player.folder().path / "game.sav"));
  player.game().mob(1).upgradepoints = 5;
  perform(player, 1);
  const Player::Events bought = [&] {
    reach(player, 1);
    return player.press(key::enter, modifier::shift);
  }();
  EXPECT_EQ(bought.back(), "voice\tHealth increased to 13.");
  EXPECT_NE(player.folder().read(kept), created);
  EXPECT_EQ(player.folder().read("autosave.sav.bak"), created);
  for (const std::string& event : bought) EXPECT_FALSE(event.ends_with("saved.wav"));
}

TEST(Autosave, ALostMissionCanBeTriedAgain) {
  Player player;
  begincampaign(player);
  beginmission(player);
  const std::string before = player.folder().read(kept);
  EXPECT_EQ(splitlines(before).front(), "") << "no mission had begun";
  EXPECT_EQ(endmission(player, aliance::heroes).back(),
            "Main menu.  Press F8 to go back to the hideout as it was before this mission.");
  perform(player, 1);
  player.game().missionnumber = 2;
  EXPECT_EQ(recruit(player, 2, "Lynx"), Spoken{"Lynx recruited.  Back at the hideout."});
  ASSERT_EQ(player.folder().read(kept), before) << "what came after the lost mission";
  EXPECT_EQ(player.spokenby(key::f8), Spoken{"Game loaded."});
  EXPECT_EQ(reach(player, 4), Spoken{"Begin mission 1."});
  player.game().missionnumber = 2;
  recruit(player, 2, "Lynx");
  EXPECT_NE(player.folder().read(kept), before) << "after loading";
}

TEST(Autosave, AVictoryIsKept) {
  Player player;
  begincampaign(player);
  beginmission(player);
  endmission(player, aliance::enemies);
  EXPECT_EQ(player.folder().read(kept), player.folder().read("game.sav"));
}

TEST(Autosave, TheTestMissionsHeroesAreNeverKept) {
  Player player;
  begincampaign(player);
  beginmission(player);  // and leaves it
  const std::string before = player.folder().read(kept);
  player.press(key::escape, modifier::shift);
  perform(player, 2);
  closepage(player);
  EXPECT_EQ(endmission(player, aliance::heroes).back(), "Main menu.");
  perform(player, 1);
  beginmission(player);
  EXPECT_EQ(endmission(player, aliance::heroes).back(), "Main menu.");
  EXPECT_EQ(player.folder().read(kept), before);
  player.press(key::f8);
  beginmission(player);
  EXPECT_TRUE(endmission(player, aliance::heroes).back().starts_with("Main menu.  Press F8"));
}

TEST(Autosave, F8WorksWhereF9Does) {
  Player player;
  expectspoken(player, {{key::f8, "File not found."}});
  player.folder().write(kept, " 1 \r\nx\r\nhalf");
  player.folder().write("game.sav", "mine");
  EXPECT_EQ(player.spokenby(key::f8), Spoken{std::string(damaged)});
  EXPECT_EQ(player.folder().read("game.sav"), "mine");
  perform(player, 2);
  closepage(player);
  expectspoken(player, {{key::f8, "F8 works in the main menu and in the hideout."}});
}

TEST(Autosave, WhatCannotBeKeptIsToldOnce) {
  Player player;
  std::filesystem::create_directories(player.folder().path / kept / "full");
  perform(player, 1);
  EXPECT_EQ(recruit(player, 1, "Owl"),
            Spoken{"Owl recruited.  Back at the hideout.  Your progress cannot be kept."});
  perform(player, 4, modifier::shift);
  closepage(player);
  EXPECT_EQ(player.spokenby(key::right), Spoken{"B 2, There is a Table here."});
  EXPECT_EQ(endmission(player, aliance::heroes).back(), "Main menu.");
}

}  // namespace
}  // namespace duskmarch
