// The missions: how they begin and end, and the stories around them.
#include "missions/missions.h"

#include <set>

#include "ground.h"
#include "harness.h"
#include "heroturn/options.h"
#include "missions/missionlist.h"
#include "resolution/endturn.h"
#include "world/narration.h"

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

// "Name x,y health of maxhealth, fight" of every mob, the heroes first, then how much furniture.
std::string roster(const Game& game) {
  std::ostringstream text;
  for (int slot = 1; slot <= game.mobcount; ++slot) {
    const Mob& mob = game.mob(slot);
    text << mob.mobname << " " << mob.mobx << "," << mob.moby << " " << mob.health << "/"
         << mob.maxhealth << " " << mob.fight << (mob.gun > 0 ? " gun" : "") << mob.action
         << mob.status << (mob.abilitycount > 0 ? " able" : "") << " | ";
  }
  text << game.itemcount << " on " << game.mapwidth << "x" << game.mapheight << ", cursor on "
       << game.cursorx << "," << game.cursory;
  return text.str();
}

TEST(Missions, BeginWithEverybodyInPlace) {
  struct Start {
    int mission;
    std::string roster;
    std::string summary;
  };
  const std::string mobsters =
      "Mobster Tony 2,2 8/8 3 | Mobster Frankie 4,4 8/8 3 gun[Loaded] | "
      "Mobster Albert 5,5 8/8 3 gun | Muscles 2,1 12/12 4 able | Mobster Al 5,1 0/8 3 gun | "
      "Mobster Tito 5,1 0/8 3 | 9 on 5x5, cursor on 3,1";
  const std::vector<Start> starts{
      {0,
       "Nightjar 2,5 25/25 7 able | Steelwing 2,5 40/40 5 gun able | Mobster Tony 2,2 16/16 4 | "
       "Biker Chick 1,2 16/16 3 | Mobster Frankie 4,4 16/16 4 gun[Loaded] | "
       "Henchman Albert 5,5 16/16 4 gun | Henchman Joe 1,4 16/16 5 | "
       "Gunman Moe 2,5 0/16 4 gun[Loaded] | Gunman Vicky 2,5 0/16 4 gun | "
       "Bruiser 2,2 30/30 6 able | Muscles 2,1 30/30 6 able | Shane 5,1 0/30 6 able | "
       "Mobster Al 5,1 0/16 4 gun | Mobster Tito 5,1 0/16 5 | 9 on 5x5, cursor on 2,5",
       "-Mission 0 begins: Invade the mobster meeting at the pool hall."},
      {1,
       "Vesper 1,2 20/20 4 able | Nora 1,2 20/20 4 |  1,2 0/0 0 | Punk Jessie 3,1 10/10 4 able | "
       "Punk Rachael 4,3 4/4 3 | Punk Carlos 1,2 0/5 4 | 2 on 4x3, cursor on 1,2",
       "-Mission 1 begins: Defeat the punks at the tattoo parlor."},
      {2, "Vesper 3,1 20/20 4 able | Nora 9,9 20/20 4 |  0,0 0/0 0 | " + mobsters,
       "-Mission 2 begins: Invade the mobster meeting at the pool hall."},
      {3, "Vesper 3,1 20/20 4 able | Nora 5,3 20/20 4 |  0,0 0/0 0 | " + mobsters,
       "-Mission 3 begins: Intercept the shipment at the dock."},
      {4, "Vesper 9,9 20/20 4 able | Nora 9,9 20/20 4 |  0,0 0/0 0 | 0 on 4x3, cursor on 0,0",
       "Text1"},
  };
  for (const Start& c : starts) {
    Player player;
    Game& game = player.game();
    game.turnnumber = 9;
    startmission(game, c.mission);
    EXPECT_EQ(roster(game), c.roster);
    EXPECT_EQ(game.summarylabel.lines, std::vector{c.summary});
    EXPECT_EQ(game.cursormode, 1);
    EXPECT_EQ(game.turnnumber, 0);
    EXPECT_TRUE(game.missionunderway);
    EXPECT_EQ(game.list2.front(), "Move");
  }
}

// Which placeholders a text holds.
std::set<std::string> placeholders(std::string_view text) {
  std::set<std::string> found;
  for (std::size_t at = text.find('$'); at != std::string_view::npos; at = text.find('$', at + 1)) {
    std::string placeholder = "$";
    while (std::isupper(static_cast<unsigned char>(text[at + placeholder.size()])) != 0) {
      placeholder += text[at + placeholder.size()];
    }
    found.insert(placeholder);
  }
  return found;
}

TEST(Missions, StoriesNameTheirHeroesAndReadWellAloud) {
  using Placeholders = std::vector<std::set<std::string>>;
  const Placeholders parlor{
      {}, {"$A", "$AHIS", "$AHE"}, {"$A"}, {"$A"}, {"$A", "$AHE"}, {"$A", "$AHE"}, {"$A"}};
  const Placeholders parlorend{{}, {"$A", "$AHE"}, {"$A", "$AHE"}};
  const Placeholders raid{{"$A", "$AHIM"}, {}, {"$A", "$AHIM"}, {"$A", "$AHE"}, {}, {"$A"}};
  const Placeholders raidend{{}, {}, {"$A"}, {"$A", "$AHE"}, {}, {"$A", "$AHIS"}, {}};
  const std::vector<std::pair<Story, Placeholders>> stories{
      {findmission(1)->start, parlor},
      {findmission(1)->ending->page, parlorend},
      {findmission(2)->start, raid},
      {findmission(2)->ending->page, raidend}};
  for (const auto& [story, expected] : stories) {
    ASSERT_EQ(story.paragraphs.size(), expected.size());
    for (std::size_t n = 0; n < expected.size(); ++n) {
      const std::string_view text = story.paragraphs[n];
      EXPECT_EQ(placeholders(text), expected[n]) << text;
      EXPECT_TRUE(std::ranges::all_of(text, [](char c) { return c >= ' ' && c <= '~'; })) << text;
      for (std::size_t at = text.find(". "); at != std::string_view::npos;
           at = text.find(". ", at + 1)) {
        EXPECT_EQ(text.substr(at, 3), ".  ") << text;
        // A pronoun comes in lower case, so it starts no sentence.
        EXPECT_NE(text.substr(at + 3, 3), "$AH") << text;
      }
    }
    EXPECT_TRUE(story.paragraphs.back().ends_with("  Press Escape to continue."));
  }
  EXPECT_TRUE(raidend.size() == 7 && findmission(2)->ending->page.paragraphs.back().ends_with(
                                         "  Mission complete.  Press Escape to continue."));
}

TEST(Missions, OnlySomePagesEndWithLineBreaks) {
  const std::vector<std::pair<int, std::pair<bool, bool>>> pages{
      {0, {true, true}}, {1, {false, true}}, {2, {false, false}}, {3, {false, false}}};
  for (const auto& [mission, breaks] : pages) {
    Player player;
    Game& game = player.game();
    startmission(game, mission);
    EXPECT_EQ(game.storylabel.ends_with("continue.\r\n\r\n"), breaks.first) << mission;
    EXPECT_EQ(game.storylabel.ends_with("continue."), !breaks.first) << mission;
    const std::string startpage = game.storylabel;
    for (int slot = 3; slot <= game.mobcount; ++slot) game.mob(slot).health = 0;
    game.turnnumber = 7;
    endcheck(game);
    EXPECT_EQ(game.storylabel.ends_with("continue.\r\n\r\n"), breaks.second) << mission;
    EXPECT_EQ(game.storylabel == startpage, mission == 3);
  }
  Player player;
  startmission(player.game(), 3);
  EXPECT_NE(player.game().storylabel.find("haha." +
                                          std::string("\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n"
                                                      "\r\n\r\n\r\n\r\n\r\n\r\n") +
                                          ".  Press"),
            std::string::npos);
}

TEST(Missions, AVictoryIsPaidToldAndSaved) {
  Player player;
  Game& game = player.game();
  startmission(game, 2);
  useup(game, 1, "Dive", 1);
  game.mob(1).earnedpoints = 3;
  game.mob(1).upgradepoints = 2;
  for (int slot = 4; slot <= game.mobcount; ++slot) game.mob(slot).health = 0;
  game.turnnumber = 6;
  EXPECT_TRUE(player.during([&] { endcheck(game); }).empty());  // two are yet to come
  game.turnnumber = 7;
  auto events = player.during([&] { endcheck(game); });
  ASSERT_EQ(events.size(), 6U);
  EXPECT_TRUE(events[2].starts_with("show\tstory\tA hard slap wakes Albert."));
  events[2] = "page";
  EXPECT_EQ(events, (Player::Events{"voice\t", "message\tVictory\tMission complete!", "page",
                                    "voice\tVictory", "focus\tstory",
                                    "play\t2\t0\t0\t0\tsounds/game/saved.wav"}));
  EXPECT_EQ(game.mob(1).upgradepoints, 5);
  EXPECT_EQ(game.mob(1).earnedpoints, 11);
  EXPECT_EQ(game.mob(1).abilities[1].abilityuses, 2);
  EXPECT_EQ(game.menuname, screen::hideout);
  EXPECT_EQ(game.cursormode, 0);
  EXPECT_FALSE(game.missionunderway);
  EXPECT_TRUE(player.folder().read("game.sav").starts_with(" 2 \r\n\r\nVesper\r\n"));
  EXPECT_EQ(player.press(key::escape),
            (Player::Events{"hide\tstory", "play\t3\t0\t0\t0\tsounds/Menu/previous.wav",
                            "voice\tBack at the hideout."}));
}

TEST(Missions, ADefeatGivesNothingBack) {
  Player player;
  Game& game = player.game();
  startmission(game, 1);
  useup(game, 1, "Dive", 1);
  game.mob(1).earnedpoints = 3;
  game.mob(1).health = game.mob(2).health = 0;
  game.menuname = screen::options;
  EXPECT_EQ(player.during([&] { endcheck(game); }),
            (Player::Events{"voice\t", "message\tDefeat\tMission failed!"}));
  EXPECT_EQ(game.mob(1).upgradepoints, 0);
  EXPECT_EQ(game.mob(1).abilities[1].abilityuses, 1);
  EXPECT_EQ(game.menuname, screen::mainmenu);
  EXPECT_FALSE(game.missionunderway);
  // When both sides have fallen, the heroes have won.
  for (int slot = 4; slot <= game.mobcount; ++slot)
    game.mob(slot).spawntime = game.mob(slot).health = 0;
  EXPECT_EQ(player.during([&] { endcheck(game); })[1], "message\tVictory\tMission complete!");
}

TEST(Missions, TheTestMissionLeavesNoEnemyAmongTheHeroes) {
  Player player;
  Game& game = player.game();
  startmission(game, 0);
  ASSERT_EQ(game.mob(3).mobname, "Mobster Tony");
  game.mob(1).abilities[3].abilityuses = 0;
  for (int slot = 3; slot <= game.mobcount; ++slot)
    game.mob(slot).health = game.mob(slot).spawntime = 0;
  const auto spoken = player.spoken([&] { endcheck(game); });
  EXPECT_EQ(spoken.back(), "Victory.");
  EXPECT_FALSE(game.mob(1).earnedpoints.isset());
  EXPECT_EQ(game.mob(1).abilities[3].abilityuses, 3);
  EXPECT_TRUE(player.folder().read("game.sav").empty());
  game.missionnumber = 1;
  startusout(game);
  EXPECT_EQ(game.mob(3).mobname, "");
  EXPECT_EQ(game.mob(3).health, 0);
  EXPECT_EQ(game.mob(3).aliance, aliance::none);
  EXPECT_EQ(game.mobcount, 6);
}

TEST(Missions, TheStoryPageLeavesOtherKeysAlone) {
  Player player;
  startmission(player.game(), 1);
  EXPECT_EQ(player.press(key::ctrl), Player::Events{"voice\t"});
  EXPECT_TRUE(player.press(key::enter).empty());
  EXPECT_EQ(player.press(key::escape),
            (Player::Events{"hide\tstory", "play\t2\t0\t0\t0\tsounds/Menu/previous.wav"}));
}

}  // namespace
}  // namespace duskmarch
