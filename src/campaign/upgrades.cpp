#include <cstddef>
#include <string>
#include <string_view>

#include "campaign/learning.h"
#include "campaign/savegame.h"
#include "campaign/screens.h"
#include "heroturn/ordertable.h"
#include "shell/speech/speech.h"
#include "world/narration.h"

namespace duskmarch {
namespace {

enum Entry { healthentry = 1, fightentry, firstability, closeentry = upgradeentries };

constexpr int bodyprice = 5;  // of more health, and of more fighting skill

const Order& abilityat(int entry) {
  return *learnableorders[static_cast<std::size_t>(entry - firstability)];
}

// The ability as the hero has it, or null. Should it be listed twice, the last one counts.
const Ability* owned(const Mob& hero, std::string_view name) {
  for (int k = hero.abilitycount; k > 0; --k) {
    const Ability& ability = hero.abilities[static_cast<std::size_t>(k)];
    if (ability.abilityname == name) return &ability;
  }
  return nullptr;
}

// What an entry offers; and what that means, for who wants descriptions.
struct Offered {
  std::string text;
  std::string_view description;
};

std::string bodytext(const Mob& hero, std::string_view value, std::string_view rise) {
  std::string text = hero.mobname;
  text.append(value).append("  For ").append(std::to_string(bodyprice));
  text.append(" upgrade points, raise ").append(hisorher(hero.gender)).append(rise);
  return text;
}

Offered health(const Mob& hero) {
  return {
      bodytext(hero, " has " + std::to_string(hero.maxhealth) + " health.", " max health by 5."),
      "Your maximum health increases which allows you to absorb more damage during each "
      "mission without dying."};
}

Offered fight(const Mob& hero) {
  return {
      bodytext(hero, "'s fighting skill is " + std::to_string(hero.maxfight) + ".", " skill by 1."),
      "Your fight level lowers as you damage opponents and regenerates slowly as you rest.  "
      "Having a higher value is the only way to normally harm the enemy."};
}

Offered ability(const Mob& hero, const Order& row) {
  std::string text = "Ability " + std::string(row.name) + ".  ";
  if (const Ability* known = owned(hero, row.name)) {
    const int uses = known->abilityuses;
    text += hero.mobname + " can use this " + std::to_string(uses);
    text += uses == 1 ? " time" : " times";
    text += " per mission.  Increase this by 1 for a cost of " + std::to_string(row.price.second);
  } else {
    text += "Gain this ability for a cost of " + std::to_string(row.price.first);
  }
  return {text + " upgrade points.", row.description};
}

Offered offeredat(const Mob& hero, int entry) {
  switch (entry) {
    case healthentry: return health(hero);
    case fightentry: return fight(hero);
    default: return ability(hero, abilityat(entry));
  }
}

std::string pointstext(int points) {
  if (points == 0) return "";
  return "  " + std::to_string(points) + (points == 1 ? " point to spend." : " points to spend.");
}

int price(const Mob& hero, int entry) {
  if (entry < firstability) return bodyprice;
  const Order& row = abilityat(entry);
  return owned(hero, row.name) ? row.price.second : row.price.first;
}

std::string raisehealth(Mob& hero) {
  hero.maxhealth += 5;
  hero.health = hero.maxhealth;
  return "Health increased to " + std::to_string(hero.maxhealth) + ".";
}

std::string raisefight(Mob& hero) {
  hero.maxfight += 1;
  hero.fight = hero.maxfight;
  return "Fighting skill increased to " + std::to_string(hero.maxfight) + ".";
}

std::string raiseability(Game& game, const Mob& hero, std::string_view name) {
  const bool isnew = owned(hero, name) == nullptr;
  learn(game, game.selected, name);
  if (isnew) return "Ability gained.";
  return std::string(name) + " increased to " + std::to_string(owned(hero, name)->abilityuses) +
         " uses.";
}

// What is said of it.
std::string raise(Game& game, Mob& hero, int entry) {
  switch (entry) {
    case healthentry: return raisehealth(hero);
    case fightentry: return raisefight(hero);
    default: return raiseability(game, hero, abilityat(entry).name);
  }
}

void buy(Game& game, Mob& hero, int entry, int shift) {
  const int cost = price(hero, entry);
  const int points = hero.upgradepoints;
  if (points < cost) {
    sayit(game, "You cannot afford this.  " + hero.mobname + " has " + std::to_string(points) +
                    (points == 1 ? " upgrade point available." : " upgrade points available."));
  } else if (shift == 0) {
    sayit(game, "Hold shift and press Enter to confirm this upgrade.");
  } else {
    hero.upgradepoints -= cost;
    const std::string raised = raise(game, hero, entry);
    keepchoices(game);
    sayit(game, raised);
  }
}

}  // namespace

void speakupgrade(Game& game) {
  if (game.menupos == closeentry) return sayit(game, "Close upgrade menu");
  const Mob& hero = game.mob(game.selected);
  const auto [text, description] = offeredat(hero, game.menupos);
  std::string whole = text;
  if (game.fulldescriptions) whole.append("  ").append(description);
  sayit(game, whole + pointstext(hero.upgradepoints));
}

void performupgrade(Game& game, int shift) {
  if (game.menupos != closeentry) {
    return buy(game, game.mob(game.selected), game.menupos, shift);
  }
  sayit(game, "At the hideout");
  enterscreen(game, screen::hideout);
}

}  // namespace duskmarch
