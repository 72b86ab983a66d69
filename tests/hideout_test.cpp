#include "campaignkeys.h"

namespace duskmarch {
namespace {

class Hideout : public testing::Test {
 protected:
  Hideout() {
    perform(player, 1);
    recruit(player, 1, "Owl", {0, 2, 1});  // Shield, Heal, Hook, Dive twice, Kick
  }
  Mob& hero() { return player.game().mob(1); }
  void openupgrades(int points) {
    hero().upgradepoints = points;
    player.game().menuname = screen::hideout;
    EXPECT_EQ(perform(player, 1), Spoken{"Spend your points."});
  }
  Player player;
};

TEST_F(Hideout, SlotsOpenWithTheMissions) {
  player.game().mob(2).aliance = aliance::enemies;  // left there by the test mission
  for (const auto& [slot, name, opensat] : {std::tuple{2, "second", 2}, {3, "third", 4}}) {
    const std::string vigilante = std::string(name) + " vigilante";
    player.game().missionnumber = opensat - 1;
    EXPECT_EQ(reach(player, slot),
              Spoken{"Before recruiting your " + vigilante + ", you must complete more missions."});
    EXPECT_TRUE(player.spokenby(key::enter).empty());
    player.game().missionnumber = opensat;
    expectspoken(player, {{key::r, "Press Enter to recruit your " + vigilante + "."},
                          {key::enter, "Create your character"}});
    EXPECT_EQ(player.game().selected, slot);
    player.game().menuname = screen::hideout;
  }
}

TEST_F(Hideout, AMissionBeginsWithAModifier) {
  EXPECT_EQ(perform(player, 4), Spoken{"Hold Shift and press Enter to begin the next mission."});
  EXPECT_FALSE(player.game().missionunderway);
  player.press(key::enter, modifier::ctrl);
  EXPECT_EQ(player.game().missionnumber, 1);
  EXPECT_TRUE(player.game().missionunderway);
}

TEST_F(Hideout, PointsAreCounted) {
  hero().upgradepoints = 1;
  EXPECT_EQ(reach(player, 1), Spoken{"Owl has 1 upgrade point.  Press Enter to spend it."});
  hero().upgradepoints = 12;
  expectspoken(player, {{key::r, "Owl has 12 upgrade points.  Press Enter to spend them."}});
}

TEST_F(Hideout, PointsBuyAbilities) {
  openupgrades(7);
  EXPECT_EQ(perform(player, 12, modifier::shift),
            Spoken{"You cannot afford this.  Owl has 7 upgrade points available."});
  EXPECT_EQ(reach(player, 9),
            Spoken{"Ability Pin.  Gain this ability for a cost of 6 upgrade points.  Enemies along "
                   "the map's edge can be pinned, preventing them from moving for a few turns.  7 "
                   "points to spend."});
  expectspoken(player,
               {{key::enter, "Hold shift and press Enter to confirm this upgrade."},
                {key::enter, "Ability gained.", modifier::shift},
                {key::r,
                 "Ability Pin.  Owl can use this 1 time per mission.  Increase this by 1 for a "
                 "cost of 3 upgrade points.  Enemies along the map's edge can be pinned, "
                 "preventing them from moving for a few turns.  1 point to spend."},
                {key::enter, "You cannot afford this.  Owl has 1 upgrade point available."}});
  hero().upgradepoints = 15;
  perform(player, 10, modifier::shift);
  EXPECT_EQ(hero().gun, 8);
  hero().gun = 11;
  expectspoken(player, {{key::enter, "Blast increased to 2 uses.", modifier::shift}});
  EXPECT_EQ(hero().gun, 11);
}

TEST_F(Hideout, PointsBuyHealthAndSkill) {
  openupgrades(11);
  hero().health = 3;
  EXPECT_EQ(perform(player, 1, modifier::shift), Spoken{"Health increased to 13."});
  EXPECT_EQ(hero().health, 13);
  hero().gender = gender::female;
  EXPECT_EQ(
      reach(player, 2),
      Spoken{"Owl's fighting skill is 4.  For 5 upgrade points, raise her skill by 1.  Your "
             "fight level lowers as you damage opponents and regenerates slowly as you rest.  "
             "Having a higher value is the only way to normally harm the enemy.  6 points to "
             "spend."});
  expectspoken(player, {{key::enter, "Fighting skill increased to 5.", modifier::alt},
                        {key::escape, "Close upgrade menu"},
                        {key::enter, "At the hideout"}});
}

TEST_F(Hideout, ASpentAbilityIsStillOwned) {
  hero().abilities.at(1).abilityuses = 0;
  openupgrades(4);
  EXPECT_TRUE(reach(player, 13)
                  .at(0)
                  .starts_with("Ability Shield.  Owl can use this 0 times per mission.  Increase "
                               "this by 1 for a cost of 4 "
                               "upgrade points.  A shield is raised "));
  expectspoken(player, {{key::enter, "Shield increased to 1 uses.", modifier::shift}});
  EXPECT_TRUE(player.spokenby(key::r).at(0).ends_with(" from incoming bullets.")) << "no points";
}

}  // namespace
}  // namespace duskmarch
