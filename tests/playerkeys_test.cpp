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
  for (const Case& c : readcases("playerkeys.txt")) {
    Player player;
    Game& game = player.game();
    arrange(game, c.before);
    for (Mob& mob : everyone(game)) mob.maxfight = 4;
    game.missionunderway = true;
    game.missionnumber = 9;
    game.menuname = screen::map;
    game.cursormode = 1;
    game.cursorx = game.cursory = 2;
    EXPECT_EQ(player.spokenby(codeof(c.what)), Spoken{c.told}) << c.after;
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

// As "Move" does it: the move is taken, the log and the options follow.
TEST(PlayerKeys, EnterWalksAsMoveDoes) {
  std::string states[2];
  for (const bool byenter : {false, true}) {
    Player player;
    begintestmission(player);
    if (byenter) {
      expectspoken(player, {{key::left, "A 5, "}});
      EXPECT_EQ(player.spokenby(key::enter).back(), "Nightjar moves to the West.");
      player.press(key::space);
    } else {
      player.press(key::left);
      player.press(key::space);
      player.answer("w");
      perform(player, 1);
    }
    player.game().menupos = 0;
    player.game().cursorx = player.game().cursory = 1;
    player.game().nextbuffer = 0;
    for (const std::string& line : player.during([&] { player.session().perform("state"); })) {
      states[byenter ? 1 : 0] += line + "\n";
    }
  }
  EXPECT_EQ(states[0], states[1]);
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

// Reads pages itself where nothing else does, and says afterwards where one is.
TEST(HelpPage, OpensAndClosesAlikeEverywhere) {
  for (const int shift : {modifier::none, modifier::shift}) {
    Player player({.reader = false});
    begintestmission(player);
    const Player::Events opened = player.press(key::f1);
    ASSERT_EQ(opened.size(), 4u);
    EXPECT_TRUE(opened[0].starts_with("show\thelp\tHelp for the map.")) << opened[0];
    EXPECT_EQ(opened[1], "voice\t");
    EXPECT_EQ(opened[2], "focus\thelp");
    EXPECT_EQ(opened[3], "voice\t" + opened[0].substr(10));
    EXPECT_EQ(player.press(key::f1), Player::Events{});
    EXPECT_EQ(player.press(key::enter), Player::Events{});
    EXPECT_TRUE(player.spokenby(key::down).front().starts_with("Up, Down, Left, Right: "));
    const Player::Events closed = player.press(key::escape, shift);
    EXPECT_EQ(closed.front(), "hide\thelp");
    EXPECT_EQ(closed.back(), "voice\tB 5, 2 here.  Nightjar and Steelwing.  ");
    EXPECT_TRUE(std::ranges::any_of(
        closed, [](const std::string& event) { return event.ends_with("previous.wav"); }));
    player.press(key::space);
    player.press(key::f1);
    EXPECT_EQ(player.press(key::escape, shift).back(), "voice\tOrders.");
    player.press(key::down);
    player.press(key::f1);
    EXPECT_TRUE(player.press(key::escape, shift).back().starts_with("voice\tMove.  "));
  }
}

}  // namespace
}  // namespace duskmarch
