#include "campaignkeys.h"

namespace duskmarch {
namespace {

TEST(Creation, AScreenReaderReadsThePromptOfTheName) {
  Player player;
  perform(player, 1);
  perform(player, 1);
  reach(player, 1);
  player.game().speechmode = 1;
  player.answer(" Two \r\nLines");
  EXPECT_EQ(player.press(key::enter).at(1),
            "input\tName\tEnter your vigilantes name, or leave blank to cancel.\t Two \\r\\nLines");
  EXPECT_EQ(player.game().mob(1).mobname, "TwoLines");
}

TEST(Creation, NoKeyLeavesTheNewcomerForAnotherHeroOrTurn) {
  for (const int menu : {screen::creation, screen::upgrades, screen::hideout}) {
    Player player;
    player.press(key::down);
    perform(player, 1);
    player.game().menuname = menu;
    const bool acts = menu == screen::hideout;
    for (const auto& [code, shift] : {std::pair{key::n, 0}, {key::e, 0}, {key::e, 1}}) {
      EXPECT_EQ(player.press(code, shift).empty(), !acts) << menu << " " << code;
    }
  }
}

TEST(Creation, ANameIsTakenInAnyLetterCase) {
  Player player;
  perform(player, 1);
  recruit(player, 1, "Älva");
  player.game().missionnumber = 2;
  EXPECT_EQ(recruit(player, 2, "äLVA"), Spoken{"This name has already been used."});
  player.press(key::escape, modifier::shift);  // half made
  perform(player, 1);
  EXPECT_EQ(reach(player, 2), Spoken{"Press Enter to recruit your second vigilante."});
  EXPECT_EQ(recruit(player, 2, "Alva"), Spoken{"Alva recruited.  Back at the hideout."});
}

TEST(Creation, ANameIsNeitherAPlanNorFurniture) {
  const struct {
    std::string typed, name, spoken;
  } cases[] = {
      {"[Shoot,1,1]", "Shoot,1,1", "Name set to Shoot,1,1"},
      {"O\twl\x7f\x01", "Owl", "Name set to Owl"},
      {"\u0085Z\u009b\u00a0\u00e9", "Z\u00a0\u00e9", "Name set to Z\u00a0\u00e9"},
      {" [ ]", "PersonMan", "Canceled."},
      {"c[h]AIR", "PersonMan", "This name cannot be used."},
      {"Table", "PersonMan", "This name cannot be used."},
      {"Tables", "Tables", "Name set to Tables"},
  };
  for (const auto& [typed, name, spoken] : cases) {
    Player player;
    perform(player, 1);
    perform(player, 1);
    player.game().speechmode = 1;
    reach(player, 1);
    player.answer(typed);
    player.press(key::enter);
    EXPECT_EQ(player.game().saidlines[1], spoken) << typed;
    EXPECT_EQ(player.game().mob(1).mobname, name) << typed;
  }
}

TEST(Creation, WhoeverWasNeverAskedIsAMan) {
  Player player;
  perform(player, 1);
  perform(player, 1);
  player.press(key::escape);  // to the entry that finishes
  player.press(key::enter);
  EXPECT_EQ(player.game().mob(1).gender, gender::male);
}

TEST(Creation, BonusesGrantAbilitiesThirdToFirst) {
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
    Player player;
    perform(player, 1);
    recruit(player, 1, "Owl", choice.changes);
    const Mob& hero = player.game().mob(1);
    std::string abilities;
    for (int k = 1; k <= hero.abilitycount; ++k) {
      const Ability& ability = hero.abilities.at(static_cast<std::size_t>(k));
      abilities += ability.abilityname + " " + std::to_string(ability.abilityuses) + " ";
    }
    EXPECT_EQ(abilities, choice.abilities);
    EXPECT_EQ(hero.gun, choice.gun);
  }
}

}  // namespace
}  // namespace duskmarch
