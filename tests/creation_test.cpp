#include "campaignkeys.h"

namespace duskmarch {
namespace {

class Creation : public testing::Test {
 protected:
  Creation() {
    perform(player, 1);
    perform(player, 1);
  }
  Mob& hero() { return player.game().mob(1); }

  Player player;
};

TEST_F(Creation, SpeaksAndChangesItsEntries) {
  hero().gender = Number();
  expectspoken(player,
               {{key::enter, "PersonMan.  Press Enter to set a new name."},
                {key::down, "This vigilante is a male.  Press Enter to change it."},
                {key::enter, "Set to female."},
                {key::enter, "Set to genderless."},
                {key::r, "This vigilante is genderless.  Press Enter to change it."},
                {key::enter, "Set to male."},
                {key::down,
                 "First bonus, Agility.  Helps your vigilante duck out of bad situations or get "
                 "into the fight quicker.  Press Enter to change it."},
                {key::enter,
                 "Combat bonus.  Makes this vigilante more brutal in hand-to-hand combat.  Press "
                 "Enter to change it."},
                {key::escape, "Finish character creation"},
                {key::enter, "PersonMan recruited.  Back at the hideout."}});
  EXPECT_EQ(player.game().menuname, screen::hideout);
  EXPECT_FALSE(hero().upgradepoints.isset());
}

TEST_F(Creation, ANameHasNoSpaces) {
  const std::string prompt = "Enter your vigilantes name, or leave blank to cancel.";
  player.answer("  Night  Owl ");
  EXPECT_EQ(perform(player, 1), (Spoken{prompt, "Name set to NightOwl"}));
  player.answer("   ");
  EXPECT_EQ(perform(player, 1).back(), "Canceled.");
  EXPECT_EQ(hero().mobname, "NightOwl");
  player.game().speechmode = 1;  // a screen reader reads the prompt itself
  player.answer("Two\r\nLines");
  EXPECT_EQ(player.press(key::enter).at(1), "input\tName\t" + prompt + "\tTwo\\r\\nLines");
  EXPECT_EQ(hero().mobname, "TwoLines");
}

TEST_F(Creation, BonusesGrantAbilitiesThirdToFirst) {
  struct Choice {
    std::array<int, 3> changes;
    std::string abilities;
    int gun;
  };
  const Choice choices[] = {
      {{0, 0, 0}, "Blast 1 Combo 1 Dust 1 Smoke bombs 1 Dive 1 Kick 1 ", 8},
      {{1, 1, 0}, "Blast 1 Combo 3 Kick 1 Headbutt 1 ", 8},
      {{0, 2, 1}, "Shield 1 Heal 1 Hook 1 Dive 2 Kick 1 ", 0},
      {{2, 0, 2}, "Throw 1 Combo 1 Dust 1 Smoke bombs 1 Pin 1 Bolas 1 ", 0},
  };
  for (const Choice& choice : choices) {
    hero().aliance = aliance::none;
    player.game().menuname = screen::hideout;
    recruit(player, 1, "Owl", choice.changes);
    std::string abilities;
    for (int k = 1; k <= hero().abilitycount; ++k) {
      const Ability& ability = hero().abilities.at(static_cast<std::size_t>(k));
      abilities += ability.abilityname + " " + std::to_string(ability.abilityuses) + " ";
    }
    EXPECT_EQ(abilities, choice.abilities);
    EXPECT_EQ(hero().gun, choice.gun);
  }
}

TEST_F(Creation, ANameIsTakenInAnyLetterCase) {
  player.game().menuname = screen::hideout;
  player.game().missionnumber = 2;
  recruit(player, 1, "Älva");
  EXPECT_EQ(recruit(player, 2, "äLVA"), Spoken{"This name has already been used."});
  player.press(key::escape, modifier::shift);  // half made
  perform(player, 1);
  EXPECT_EQ(reach(player, 2), Spoken{"Press Enter to recruit your second vigilante."});
  EXPECT_EQ(recruit(player, 2, "Alva"), Spoken{"Alva recruited.  Back at the hideout."});
}

}  // namespace
}  // namespace duskmarch
