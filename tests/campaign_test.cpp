// The campaign as a player walks through it: by keys alone.
#include <algorithm>

#include "campaignkeys.h"

namespace duskmarch {
namespace {

namespace fs = std::filesystem;

bool showed(const Player::Events& events, std::string_view begin) {
  return std::ranges::any_of(events, [&](const auto& event) { return event.starts_with(begin); });
}

// The entry of the first option on offer that begins so; 0 when there is none.
int offered(Player& player, std::string_view start) {
  const auto& options = player.game().list2;
  const auto found = std::ranges::find_if(
      options, [&](const std::string& option) { return option.starts_with(start); });
  return found == options.end() ? 0 : static_cast<int>(found - options.begin()) + 1;
}

// Uses the hero's best ability, and sees to it that it fights somebody.
void act(Player& player) {
  for (const std::string_view ability : {"Combo ", "Dust ", "Bolas "}) {
    if (const int entry = offered(player, ability)) {
      perform(player, entry);
      break;
    }
  }
  if (offered(player, "Don't target anyone")) return;
  if (const int entry = offered(player, "Target ")) perform(player, entry);
}

// Fights from the story page to the end of the mission; whether it was won.
bool fight(Player& player) {
  player.press(key::escape);
  player.press(key::space);
  for (int turn = 1; turn <= 15; ++turn) {
    act(player);
    player.press(key::e, modifier::shift);
    const auto events = player.press(key::enter);  // closes the summary
    if (showed(events, "message\tVictory\t")) return true;
    if (showed(events, "message\tDefeat\t")) return false;
  }
  return false;
}

// A new game up to the end of mission 1; whether it was won with points to spend.
bool winmission1(const fs::path& folder, std::uint32_t seed) {
  Player player({.folder = folder, .seed = seed});
  perform(player, 1);
  recruit(player, 1, "Owl", {2, 0, 2});  // Throw, Combo, Dust, Smoke bombs, Pin, Bolas
  perform(player, 4, modifier::shift);
  if (!fight(player)) return false;
  expectspoken(player, {{key::escape, "Back at the hideout."}});
  return player.game().mob(1).upgradepoints >= 3;
}

TEST(Campaign, ContinuesWhereItWasSaved) {
  ProgramFolder folder;
  std::uint32_t seed = 1;
  while (seed < 50 && !winmission1(folder.path, seed)) ++seed;
  ASSERT_LT(seed, 50u);

  Player player({.folder = folder.path});
  expectspoken(player, {{key::f9, "Game loaded."},
                        {key::enter, "Owl has 3 upgrade points.  Press Enter to spend them."},
                        {key::enter, "Spend your points."}});
  EXPECT_EQ(perform(player, 17, modifier::shift), Spoken{"Bolas increased to 2 uses."});
  expectspoken(player, {{key::escape, "Close upgrade menu"}, {key::enter, "At the hideout"}});
  EXPECT_EQ(reach(player, 4), Spoken{"Begin mission 2."});
  player.press(key::enter, modifier::shift);
  player.press(key::escape);
  EXPECT_TRUE(showed(player.press(key::l), "show\tsummary\t-Mission 2 begins: "));
  EXPECT_EQ(player.game().mob(1).abilities.at(6).abilityextra, 2);  // Bolas, for this mission
}

}  // namespace
}  // namespace duskmarch
