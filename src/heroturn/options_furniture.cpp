#include <string>
#include <vector>

#include "heroturn/heroactions.h"
#include "heroturn/messagelog.h"
#include "resolution/tags.h"
#include "values/namelist.h"
#include "world/furniture.h"
#include "world/narration.h"
#include "world/tables.h"

namespace duskmarch {

namespace {

// The piece of furniture on the hero's tile; null when there is none.
Item* furniturehere(Game& game, const Mob& hero, std::string_view name) {
  const int slot = finditem(game, hero.mobx, hero.moby, name);
  return slot == 0 ? nullptr : &game.item(slot);
}

bool enemyon(const Mob& mob, Tile tile) {
  return conscious(mob) && mob.aliance == aliance::enemies && at(mob, tile.x, tile.y);
}

void knockover(Mob& victim) {
  addtag(victim.status, tag::dazed);
  victim.action.clear();
}

// The first enemy in line between the hero and the edge of the map; null when there is none.
Mob* firstenemy(Game& game, const Mob& hero, const Direction& direction) {
  const int reach = tilestotheedge(game, tileof(hero), direction);
  for (int tiles = 1; tiles <= reach; ++tiles) {
    const Tile tile = step(tileof(hero), direction, tiles);
    for (int slot = 1; slot <= game.mobcount; ++slot) {
      if (enemyon(game.mob(slot), tile)) return &game.mob(slot);
    }
  }
  return nullptr;
}

struct PersonThrow {
  int thrown = 0;
  const Direction* direction = nullptr;
};

// Nobody, when no mob's name and a direction make up the text; the last one of several.
PersonThrow findthrown(const Game& game, std::string_view throwing) {
  PersonThrow found;
  for (const Direction& direction : directions) {
    const std::string ending = sentence({" ", direction.word});
    if (!throwing.ends_with(ending)) continue;
    const auto name = throwing.substr(0, throwing.size() - ending.size());
    for (int slot = 1; slot <= game.mobcount; ++slot) {
      if (game.mob(slot).mobname == name) found = {slot, &direction};
    }
  }
  return found;
}

}  // namespace

void option::fliptable(Game& game, Mob& hero) {
  Item* const table = furniturehere(game, hero, "Table");
  if (table == nullptr) return;
  table->itemhealth = 0;
  addtiletag(game, hero.mobx, hero.moby, tag::table, 1);
  hero.hasacted = 1;
}

void option::throwtable(Game& game, Mob& hero, const Direction& direction) {
  Item* const table = furniturehere(game, hero, "Table");
  if (table == nullptr) return;
  spendaction(game, hero, "Throw");
  const Tile landing = keptonthemap(game, step(tileof(hero), direction));
  std::vector<std::string> hit;
  std::vector<std::string> knockedout;
  for (int slot = 1; slot <= game.mobcount; ++slot) {
    Mob& mob = game.mob(slot);
    if (!enemyon(mob, landing)) continue;
    knockover(mob);
    mob.health -= tabledamage;
    hit.push_back(mob.mobname);
    if (conscious(mob)) continue;
    knockedout.push_back(mob.mobname);
    creditknockout(hero);
  }
  crash(*table, landing);
  const std::string knockedover = sentence({" knocked over by the incoming table, suffering ",
                                            std::to_string(tabledamage), " damage.  "});
  std::string line = sentence(
      {hero.mobname, " lifts and throws a table ", direction.word, ".  ",
       joinnames(hit, " was" + knockedover, " were" + knockedover),
       joinnames(knockedout, " was knocked unconscious.  ", " were knocked unconscious.  ")});
  if (!onthemap(*table)) line += "The table has splintered into scraps of wood.  ";
  list1additem(game, line);
}

void option::throwchair(Game& game, Mob& hero, const Direction& direction) {
  Item* const chair = furniturehere(game, hero, "Chair");
  if (chair == nullptr) return;
  spendaction(game, hero, "Throw");
  std::string line =
      sentence({hero.mobname, " grabs a chair and hurls it ", direction.word, ".  "});
  if (Mob* const victim = firstenemy(game, hero, direction)) {
    victim->health -= chairdamage;
    knockover(*victim);
    line += sentence({victim->mobname, " was hit by it and suffered ", std::to_string(chairdamage),
                      " damage.  "});
    if (!conscious(*victim)) {
      line += victim->mobname + " was knocked unconscious by the impact.  ";
      creditknockout(hero);
    }
    crash(*chair, tileof(*victim));
  }
  list1additem(game, line);
}

void option::throwperson(Game& game, Mob& hero, std::string_view throwing) {
  const auto [slot, direction] = findthrown(game, throwing);
  if (slot == 0) return;
  hero.target = slot;
  spendaction(game, hero, "Throw");
  Mob& thrown = game.mob(slot);
  const Tile landing = keptonthemap(game, step(tileof(hero), *direction));
  std::vector<std::string> victims;
  for (int other = 1; other <= game.mobcount; ++other) {
    Mob& mob = game.mob(other);
    if (!enemyon(mob, landing) || !mob.status.empty()) continue;
    knockover(mob);
    victims.push_back(mob.mobname);
  }
  place(thrown, landing);
  thrown.action.clear();
  thrown.target = 0;
  addtag(thrown.status, tag::dazed, 2);
  removeeverytag(thrown.status, tag::pinned);
  const std::string ending = " knocked over as " + thrown.mobname + " came crashing down.  ";
  list1additem(game, sentence({hero.mobname, " hurls ", thrown.mobname, " ", direction->word, ".  ",
                               joinnames(victims, " was" + ending, " were" + ending)}));
}

}  // namespace duskmarch
