// Every option of a hero, performed: what it changes, and the line that tells of it.
#include <set>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "cases.h"
#include "ground.h"
#include "harness.h"
#include "heroturn/dooption.h"
#include "heroturn/offers.h"

namespace duskmarch {
namespace {

constexpr auto question = "Enter N S E W to choose your direction, or leave blank to cancel.";

TEST(Abilities, ChangeAndTellWhatTheirRuleSays) {
  for (const Case& c : readcases("abilities.txt")) {
    SCOPED_TRACE(c.place);
    Player player;
    const auto [option, answer] = readorder(c.what);
    arrangefor(player.game(), c.before, option);
    player.answer(answer);
    const auto spoken = player.spoken([&] { dooption(player.game(), option); });
    std::string log;
    for (const std::string& line : player.game().list1) {
      log = line + (log.empty() ? "" : " / ") + log;
    }
    EXPECT_EQ(log, c.told);
    EXPECT_EQ(described(player.game()), c.after);
    EXPECT_TRUE(log.empty() || spoken.back() == player.game().list1.front());
  }
}

TEST(Abilities, HaveACaseForEachOrder) {
  std::set<std::string_view> tried;
  for (const Case& c : readcases("abilities.txt")) {
    if (const Order* order = readoption(readorder(c.what).option).order) tried.insert(order->name);
  }
  for (const Order& order : orders) EXPECT_TRUE(tried.contains(order.name)) << order.name;
}

// The question for a direction, and what is refused.

std::string asked(const std::string& answer) {
  return "input\tChoose direction\t" + std::string(question) + "\t" + answer;
}

TEST(Direction, IsOneLetterThatStaysOnTheMap) {
  const struct {
    std::string option, answer, ground;
  } cases[] = {{"Move", " N", "Vesper 2,2 20 4"}, {"Dive", "North", "Vesper 2,2 20 4"},
               {"Hook", "x", "Vesper 2,2 20 4"},  {"Throw chair", "nn", "Vesper 2,2 20 4"},
               {"Move", "n", "Vesper 2,1 20 4"},  {"Dive", "s", "Vesper 2,3 20 4"},
               {"Hook", "e", "Vesper 4,2 20 4"},  {"Move", "w", "Vesper 1,2 20 4"},
               {"Move", "w", "Vesper 9,2 20 4"},  {"Hook", "n", "Vesper 0,15 20 4"}};
  for (const auto& [option, answer, ground] : cases) {
    Player player;
    arrangefor(player.game(), ground, option);
    player.answer(answer);
    EXPECT_EQ(
        player.during([&] { dooption(player.game(), option); }),
        (Player::Events{"voice\t" + std::string(question), asked(answer), "message\t\tCanceled"}))
        << option << " " << answer;
    EXPECT_EQ(described(player.game()), ground);
  }
}

TEST(CommonEnding, SpeaksTheEmptyTextWhenNothingWasLoggedYet) {
  Player player;
  arrange(player.game(), "Vesper 2,2 20 4 | Table 2,2 1");
  EXPECT_EQ(player.during([&] { dooption(player.game(), "Flip table"); }).at(1), "voice\t");
  EXPECT_EQ(tiletags(player.game(), 2, 2), "[Table]");
  for (const std::string option : {"No such option", "Kick Nobody", "Move Nowhere"}) {
    EXPECT_EQ(player.during([&] { dooption(player.game(), option); }).at(0), "voice\t");
  }
  EXPECT_TRUE(player.during([&] { dooption(player.game(), "Heal Vesper"); }).empty());
}

TEST(SmokeBombs, AreThickAroundTheHeroAndThinTwoTilesAway) {
  Player player;
  arrange(player.game(), "Vesper 1,1 20 4");
  dooption(player.game(), "Smoke bombs");
  EXPECT_EQ(tiletags(player.game(), 1, 1), "[Smoke][Smoke][Smoke][Smoke]");
  EXPECT_EQ(tiletags(player.game(), 1, 2), "[Smoke][Smoke][Smoke][Smoke]");
  EXPECT_EQ(tiletags(player.game(), 2, 2), "[Smoke][Smoke]");
  EXPECT_EQ(tiletags(player.game(), 3, 1), "[Smoke][Smoke]");
  EXPECT_EQ(tiletags(player.game(), 3, 2), "");
  for (const auto& [x, y] : {std::pair{-1, 3}, {3, 16}, {16, -1}}) {
    addtiletag(player.game(), x, y, "[Smoke]", 2);
    EXPECT_EQ(tiletags(player.game(), x, y), "") << "off the map";
  }
}

}  // namespace
}  // namespace duskmarch
