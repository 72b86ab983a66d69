#include <cstddef>
#include <string>
#include <string_view>

#include "campaign/learning.h"
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

std::string bodytext(const Mob& hero, std::string_view value, std::string_view rise) {
  std::string text = hero.mobname;
  text.append(value).append("  For ").append(std::to_string(bodyprice));
  text.append(" upgrade points, raise ").append(hisorher(hero.gender)).append(rise);
  return text;
}

std::string healthtext(const Mob& hero) {
  return bodytext(hero, " has " + std::to_string(hero.maxhealth) + " health.",
                  " max health by 5.  Your maximum health increases which allows you to absorb "
                  "more damage during each mission without dying.");
}

std::string fighttext(const Mob& hero) {
  return bodytext(hero, "'s fighting skill is " + std::to_string(hero.maxfight) + ".",
                  " skill by 1.  Your fight level lowers as you damage opponents and regenerates "
                  "slowly as you rest.  Having a higher value is the only way to normally harm "
                  "the enemy.");
}

std::string abilitytext(const Mob& hero, const Order& row) {
  std::string text = "Ability " + std::string(row.name) + ".  ";
  if (const Ability* ability = owned(hero, row.name)) {
    const int uses = ability->abilityuses;
    text += hero.mobname + " can use this " + std::to_string(uses);
    text += uses == 1 ? " time" : " times";
    text += " per mission.  Increase this by 1 for a cost of " + std::to_string(row.price.second);
  } else {
    text += "Gain this ability for a cost of " + std::to_string(row.price.first);
  }
  return text.append(" upgrade points.  ").append(row.description);
}

std::string entrytext(const Mob& hero, int entry) {
  switch (entry) {
    case healthentry: return healthtext(hero);
    case fightentry: return fighttext(hero);
    default: return abilitytext(hero, abilityat(entry));
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

void raisehealth(Game& game, Mob& hero) {
  hero.maxhealth += 5;
  hero.health = hero.maxhealth;
  sayit(game, "Health increased to " + std::to_string(hero.maxhealth) + ".");
}

void raisefight(Game& game, Mob& hero) {
  hero.maxfight += 1;
  hero.fight = hero.maxfight;
  sayit(game, "Fighting skill increased to " + std::to_string(hero.maxfight) + ".");
}

void raiseability(Game& game, const Mob& hero, std::string_view name) {
  const bool isnew = owned(hero, name) == nullptr;
  learn(game, game.selected, name);
  sayit(game, isnew ? "Ability gained."
                    : std::string(name) + " increased to " +
                          std::to_string(owned(hero, name)->abilityuses) + " uses.");
}

void raise(Game& game, Mob& hero, int entry) {
  switch (entry) {
    case healthentry: return raisehealth(game, hero);
    case fightentry: return raisefight(game, hero);
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
    raise(game, hero, entry);
  }
}

}  // namespace

void speakupgrade(Game& game) {
  if (game.menupos == closeentry) return sayit(game, "Close upgrade menu");
  const Mob& hero = game.mob(game.selected);
  sayit(game, entrytext(hero, game.menupos) + pointstext(hero.upgradepoints));
}

void performupgrade(Game& game, int shift) {
  if (game.menupos != closeentry) {
    return buy(game, game.mob(game.selected), game.menupos, shift);
  }
  sayit(game, "At the hideout");
  enterscreen(game, screen::hideout);
}

}  // namespace duskmarch
