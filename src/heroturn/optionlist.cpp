#include "heroturn/optionlist.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <string>

#include "resolution/tags.h"
#include "world/directions.h"
#include "world/narration.h"
#include "world/tables.h"

namespace duskmarch {

namespace {

// Which mobs an ability may be used upon.

bool foe(const Mob& mob, const Mob& other) {
  return other.aliance != mob.aliance;
}

int distance(const Mob& mob, const Mob& other) {
  return std::abs(mob.mobx - other.mobx) + std::abs(mob.moby - other.moby);
}

bool foewithin(const Mob& mob, const Mob& other, int reach) {
  return foe(mob, other) && !sametile(mob, other) && distance(mob, other) <= reach;
}

bool ally(const Game&, const Mob& mob, const Mob& other) {
  return !foe(mob, other);
}
bool foehere(const Game&, const Mob& mob, const Mob& other) {
  return foe(mob, other) && sametile(mob, other);
}
// A headbutt costs 2 health, and nobody knocks himself out on purpose.
bool foetobutt(const Game& game, const Mob& mob, const Mob& other) {
  return mob.health > 2 && foehere(game, mob, other);
}
bool foebeside(const Game&, const Mob& mob, const Mob& other) {
  return foewithin(mob, other, 1);
}
bool foewithin2(const Game&, const Mob& mob, const Mob& other) {
  return foewithin(mob, other, 2);
}
bool foewithin3(const Game&, const Mob& mob, const Mob& other) {
  return foewithin(mob, other, 3);
}
bool foeinline(const Game&, const Mob& mob, const Mob& other) {
  return foe(mob, other) && (mob.mobx == other.mobx) != (mob.moby == other.moby);
}
bool foeatthewall(const Game& game, const Mob& mob, const Mob& other) {
  return foe(mob, other) && (other.mobx == 1 || other.mobx == game.mapwidth || other.moby == 1 ||
                             other.moby == game.mapheight);
}

void offerfurniture(Game& game, const Mob& mob) {
  for (int slot = 1; slot <= game.itemcount; ++slot) {
    const Item& item = game.item(slot);
    if (!onthemap(item) || !at(item, mob.mobx, mob.moby)) continue;
    if (item.itemname == "Chair") list2additem(game, "Throw chair");
    if (item.itemname == "Table") list2additem(game, "Throw table");
  }
}

struct OfferingRule {
  std::string_view ability;
  // Null: the ability is used upon nobody, and its name is the option.
  bool (*upon)(const Game& game, const Mob& mob, const Mob& other) = nullptr;
  void (*andalso)(Game& game, const Mob& mob) = nullptr;
};

constexpr std::array offeringrules{
    OfferingRule{"Dive"},
    OfferingRule{"Shield"},
    OfferingRule{"Smoke bombs"},
    OfferingRule{"Hook"},
    OfferingRule{"Second wind"},
    OfferingRule{"Throw", foehere, offerfurniture},
    OfferingRule{"Headbutt", foetobutt},
    OfferingRule{"Combo", foehere},
    OfferingRule{"Dust", foehere},
    OfferingRule{"Kick", foebeside},
    OfferingRule{"Pin", foeatthewall},
    OfferingRule{"Blast", foewithin2},
    OfferingRule{"Grapnel", foeinline},
    OfferingRule{"Bolas", foewithin2},
    OfferingRule{"Heal", ally},
    OfferingRule{"Net", foewithin3},
};

void offer(Game& game, const Mob& mob, const OfferingRule& rule) {
  if (rule.upon == nullptr) return list2additem(game, rule.ability);
  for (int slot = 1; slot <= game.mobcount; ++slot) {
    const Mob& other = game.mob(slot);
    if (!conscious(other) || !rule.upon(game, mob, other)) continue;
    list2additem(game, sentence({rule.ability, " ", other.mobname}));
  }
  if (rule.andalso != nullptr) rule.andalso(game, mob);
}

void offertargets(Game& game, const Mob& mob) {
  if (game.listingfor != 0) return;  // an enemy makes nothing of them
  for (int slot = 1; slot <= game.mobcount; ++slot) {
    const Mob& other = game.mob(slot);
    if (!conscious(other) || !foehere(game, mob, other)) continue;
    if (!other.action.empty() && mob.target == slot) continue;
    list2additem(game, sentence({"Target ", other.mobname}));
  }
}

void offerabilities(Game& game, const Mob& mob) {
  for (int slot = 1; slot <= mob.abilitycount; ++slot) {
    const Ability& ability = mob.abilities[static_cast<std::size_t>(slot)];
    if (ability.abilityuses <= 0) continue;
    const auto* rule =
        std::ranges::find(offeringrules, ability.abilityname, &OfferingRule::ability);
    if (rule != offeringrules.end()) offer(game, mob, *rule);
  }
}

void offertables(Game& game, const Mob& mob) {
  for (int slot = 1; slot <= game.itemcount; ++slot) {
    const Item& item = game.item(slot);
    if (onthemap(item) && at(item, mob.mobx, mob.moby) && item.itemname == "Table") {
      list2additem(game, "Flip table");
    }
  }
}

// What an enemy makes of an option: entries of its own list, by the direction it would act in.

void list3additem(Game& game, std::string_view option, const Direction& direction) {
  game.list3.push_back(sentence({"[", option, " ", direction.word, "]"}));
}

void listkicks(Game& game, const Mob& enemy) {
  for (const Direction& direction : directions) {
    const Tile tile = step(tileof(enemy), direction);
    const Hundredths heroes = menhere(game, 1, tile.x, tile.y, aliance::heroes, "");
    if (heroes > Hundredths{}) list3additem(game, "Kick", direction);
  }
}

// The throws that hit a hero up to `reach` tiles away.
void listthrows(Game& game, const Mob& enemy, std::string_view option, int reach) {
  for (int slot = 1; slot <= game.mobcount; ++slot) {
    const Mob& hero = game.mob(slot);
    if (!conscious(hero) || hero.aliance != aliance::heroes) continue;
    for (const Direction& direction : directions) {
      const int tiles = tilesahead(tileof(enemy), tileof(hero), direction);
      if (tiles >= 1 && tiles <= reach) list3additem(game, option, direction);
    }
  }
}

// A person may be thrown anywhere but against the edge of the map.
void listpersonthrows(Game& game, const Mob& enemy, std::string_view option) {
  for (const Direction& direction : directions) {
    if (tilestotheedge(game, tileof(enemy), direction) > 0) list3additem(game, option, direction);
  }
}

void list3additems(Game& game, std::string_view option) {
  const Mob& enemy = game.mob(game.listingfor);
  if (hastag(enemy.status, tag::dazed)) return;
  if (option.starts_with("Kick ")) return listkicks(game, enemy);
  if (!option.starts_with("Throw ")) return;
  if (option == "Throw chair") return listthrows(game, enemy, option, gridsize);
  if (option != "Throw table") listpersonthrows(game, enemy, option);
  listthrows(game, enemy, option, 1);
}

}  // namespace

void listoptions(Game& game, int w) {
  const int slot = w == 0 ? game.selected : w;
  const Mob& mob = game.mob(slot);
  game.list2.clear();
  if (!conscious(mob) || hastag(mob.status, tag::dazed)) return;
  if (mob.engaged == 0 && mob.hasmoved == 0) list2additem(game, "Move");
  offertargets(game, mob);
  if (mob.target != 0 && hastag(mob.action, tag::fight)) {
    list2additem(game, "Don't target anyone");
  }
  if (mob.hasacted != 0) return;
  offerabilities(game, mob);
  offertables(game, mob);
}

void list2additem(Game& game, std::string_view option) {
  if (game.listingfor == 0) {
    game.list2.emplace_back(option);
  } else {
    list3additems(game, option);
  }
}

}  // namespace duskmarch
