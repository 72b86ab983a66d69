// The keys beyond the rules, by what a player hears.
#include "shell/playerkeys.h"

#include "campaignkeys.h"
#include "cases.h"
#include "ground.h"
#include "world/whostands.h"

namespace duskmarch {
namespace {

int codeof(const std::string& name) {
  if (name == "Enter") return key::enter;
  return static_cast<unsigned char>(name.front());
}

TEST(PlayerKeys, TellInAMission) {
  for (const Case& c : readcases("playerkeys.txt", 2)) {
    Player player;
    Game& game = player.game();
    arrange(game, c.before);
    for (Mob& mob : everyone(game)) mob.maxfight = 4;
    game.missionunderway = true;
    game.missionnumber = 9;
    game.menuname = screen::map;
    game.cursormode = 1;
    game.cursorx = game.cursory = 2;
    EXPECT_EQ(player.spokenby(codeof(c.what)), Spoken{c.told}) << c.place;
  }
}

TEST(PlayerKeys, SmokeAndTablesStopGuns) {
  for (const auto& [tags, told] : std::vector<std::pair<std::string, std::string>>{
           {"[Smoke][Smoke]",
            "No danger that you know of, fights apart.  The smoke at B 2 stops the gun of Moe."},
           {"[Table]",
            "No danger that you know of, fights apart.  The overturned table at B 2 stops the gun "
            "of Moe."}}) {
    Player player;
    Game& game = player.game();
    arrange(game, "Vesper 2,2 20 4 | Moe 1,1 7 2 gun plans[Shoot,2,2]");
    game.missionunderway = true;
    game.tilefx[2][2] = tags;
    game.cursorx = game.cursory = 2;
    EXPECT_EQ(player.spokenby(key::d), Spoken{told});
    EXPECT_NE(player.spokenby(key::i).front().find(tags == "[Table]" ? "  Overturned table."
                                                                     : "  Smoke for 2 more turns."),
              std::string::npos);
  }
}

void begintestmission(Player& player) {
  perform(player, 2);
  player.press(key::escape);
}

TEST(PlayerKeys, LeaveCtrlAndAltToTheSystem) {
  Player player;
  begintestmission(player);
  for (const PlayerKey& row : playerkeys()) {
    if (row.act == nullptr) continue;
    for (const int shift : {modifier::ctrl, modifier::alt, modifier::ctrl + modifier::shift}) {
      EXPECT_EQ(player.press(row.code, shift), Player::Events{}) << row.keys;
    }
  }
}

// Read where nothing else does, and left by Shift+Escape too.
TEST(HelpPage, OpensAndClosesAlikeEverywhere) {
  Player player({.reader = false});
  begintestmission(player);
  const Player::Events opened = player.press(key::f1);
  EXPECT_EQ(opened.at(3), "voice\t" + opened[0].substr(10));
  EXPECT_TRUE(player.spokenby(key::down).front().starts_with("Up, Down, Left, Right: "));
  EXPECT_EQ(player.press(key::escape, modifier::shift).back(),
            "voice\tB 5, 2 here.  Nightjar and Steelwing.  ");
}

}  // namespace
}  // namespace duskmarch
