// The missions: how they begin and end, and the stories around them.
#include "missions/missions.h"

#include <set>

#include "cases.h"
#include "ground.h"
#include "harness.h"
#include "missions/missionlist.h"

namespace duskmarch {
namespace {

// Starts a mission with Vesper, who can dive twice, and Nora.
void startmission(Game& game, int number) {
  arrange(game, "Vesper 9,9 1 1 [Netted] plans[Fight] | Nora 9,9 1 1");
  game.mob(1).maxfight = game.mob(2).maxfight = 4;
  give(game, 1, "Dive", 2);
  game.missionnumber = number;
  startusout(game);
}

void knockout(Game& game, int firstslot) {
  for (int slot = firstslot; slot <= game.mobcount; ++slot) game.mob(slot).health = 0;
}

std::string roster(const Game& game) {
  std::ostringstream text;
  for (int slot = 1; slot <= game.mobcount; ++slot) {
    const Mob& mob = game.mob(slot);
    text << (slot > 1 ? " | " : "") << mob.mobname << " " << mob.mobx << "," << mob.moby << " "
         << mob.health << "/" << mob.maxhealth << " " << mob.fight << (mob.gun > 0 ? " gun" : "")
         << mob.action << mob.status << (mob.abilitycount > 0 ? " able" : "");
  }
  return text.str();
}

TEST(Missions, BeginWithEverybodyInPlace) {
  for (const Case& c : readcases("missions.txt")) {
    SCOPED_TRACE(c.place);
    Player player;
    Game& game = player.game();
    game.turnnumber = 9;
    startmission(game, std::stoi(c.what));
    EXPECT_EQ(game.summarylabel.lines, std::vector{c.before});
    EXPECT_EQ(roster(game), c.told);
    std::ostringstream map;
    map << game.itemcount << " on " << game.mapwidth << "x" << game.mapheight << ", cursor on "
        << game.cursorx << "," << game.cursory;
    EXPECT_EQ(map.str(), c.after);
    EXPECT_EQ(game.cursormode, 1);
    EXPECT_EQ(game.turnnumber, 0);
    EXPECT_TRUE(game.missionunderway);
    EXPECT_EQ(game.list2.front(), "Move");
  }
}

TEST(Missions, OnlySomePagesEndWithLineBreaks) {
  struct Pages {
    int mission;
    bool startbreaks, endbreaks;
  };
  for (const auto& [mission, startbreaks, endbreaks] : std::vector<Pages>{
           {0, true, true}, {1, false, true}, {2, false, false}, {3, false, false}}) {
    Player player;
    Game& game = player.game();
    startmission(game, mission);
    EXPECT_EQ(game.storylabel.ends_with("continue.\r\n\r\n"), startbreaks) << mission;
    const std::string startpage = game.storylabel;
    knockout(game, 3);
    game.turnnumber = 7;
    endcheck(game);
    EXPECT_EQ(game.storylabel.ends_with("continue.\r\n\r\n"), endbreaks) << mission;
    EXPECT_EQ(game.storylabel == startpage, mission == 3);
  }
}

TEST(Missions, AVictoryIsPaidToldAndSaved) {
  Player player;
  Game& game = player.game();
  startmission(game, 2);
  useup(game, 1, "Dive", 1);
  game.mob(1).earnedpoints = 3;
  game.mob(1).upgradepoints = 2;
  knockout(game, 4);
  game.turnnumber = 6;
  EXPECT_TRUE(player.during([&] { endcheck(game); }).empty());  // two are yet to come
  game.turnnumber = 7;
  const auto events = player.during([&] { endcheck(game); });
  EXPECT_TRUE(events.at(3).starts_with("show\tstory\tA hard slap wakes Albert."));
  EXPECT_EQ(events.at(4), "voice\tVictory");
  EXPECT_EQ(game.mob(1).upgradepoints, 5);
  EXPECT_EQ(game.mob(1).earnedpoints, 11);
  EXPECT_EQ(game.mob(1).abilities[1].abilityuses, 2);
  EXPECT_TRUE(player.folder().read("game.sav").starts_with(" 2 \r\n\r\nVesper\r\n"));
}

TEST(Missions, ADefeatGivesNothingBack) {
  Player player;
  Game& game = player.game();
  startmission(game, 1);
  useup(game, 1, "Dive", 1);
  game.mob(1).earnedpoints = 3;
  knockout(game, 1);
  game.menuname = screen::options;
  const Player::Events defeat{"cue\tdefeat\t0\t0\t0", "voice\t", "message\tDefeat\tMission failed!",
                              "voice\tMain menu."};
  EXPECT_EQ(player.during([&] { endcheck(game); }), defeat);
  EXPECT_EQ(game.mob(1).upgradepoints, 0);
  EXPECT_EQ(game.mob(1).abilities[1].abilityuses, 1);
  EXPECT_EQ(game.menuname, screen::mainmenu);
  EXPECT_FALSE(game.missionunderway);
  // When nobody at all is left, the heroes have won.
  game.turnnumber = 3;
  EXPECT_EQ(player.during([&] { endcheck(game); })[2], "message\tVictory\tMission complete!");
}

TEST(Missions, WithoutAPageThePlayerIsToldWhereHeIs) {
  Player player;
  Game& game = player.game();
  startmission(game, 3);
  for (int slot = 4; slot <= game.mobcount; ++slot) knockout(game, slot);
  game.turnnumber = 7;
  EXPECT_EQ(player.during([&] { endcheck(game); }),
            (Player::Events{"cue\tvictory\t0\t0\t0", "voice\t",
                            "message\tVictory\tMission complete!", "voice\tBack at the hideout."}));
  game.missionnumber = 4;
  EXPECT_EQ(player.during([&] { startusout(game); }),
            Player::Events{"voice\tMission 4 has not been written yet."});
}

TEST(Missions, TheTestMissionLeavesNoEnemyAmongTheHeroes) {
  Player player;
  Game& game = player.game();
  startmission(game, 0);
  ASSERT_EQ(game.mob(3).mobname, "Mobster Tony");
  useup(game, 1, "Throw", 2);
  knockout(game, 3);
  game.turnnumber = 7;
  EXPECT_EQ(player.spoken([&] { endcheck(game); }), std::vector<std::string>{"Victory."});
  EXPECT_FALSE(game.mob(1).earnedpoints.isset());
  EXPECT_EQ(game.mob(1).abilities[3].abilityuses, 3);
  EXPECT_TRUE(player.folder().read("game.sav").empty());
  game.missionnumber = 1;
  startusout(game);
  EXPECT_EQ(game.mob(3).mobname, "");
  EXPECT_EQ(game.mob(3).health, 0);
  EXPECT_EQ(game.mob(3).aliance, aliance::none);
}

}  // namespace
}  // namespace duskmarch
