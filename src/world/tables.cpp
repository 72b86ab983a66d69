#include "world/tables.h"

#include <algorithm>

#include "resolution/tags.h"

namespace duskmarch {

int newmob(Game& game, const NewMob& mob) {
  game.mobcount += 1;
  Mob& created = game.mob(game.mobcount);
  created = Mob{};
  created.mobname = mob.name;
  created.gender = mob.gender == "M" ? gender::male : gender::female;
  created.aliance = aliance::enemies;
  created.mobtype = mob.type;
  created.maxhealth = mob.health;
  created.health = mob.spawntime == 0 ? mob.health : 0;
  created.mobx = created.startx = mob.x;
  created.moby = created.starty = mob.y;
  created.maxfight = created.fight = mob.fight;
  created.gun = mob.gun;
  created.action = mob.action;
  created.spawntime = mob.spawntime;
  if (mob.spawntime != 0) created.spawntext = mob.spawntext;
  return game.mobcount;
}

void emptyheroslot(Mob& mob) {
  mob.aliance = aliance::none;
  mob.mobname.clear();
  mob.maxhealth = 0;
  mob.health = 0;
  mob.mobtype = 0;
}

void newitem(Game& game, std::string_view name, int x, int y, int health) {
  game.itemcount += 1;
  game.item(game.itemcount) = {std::string(name), x, y, health, health};
}

void give(Game& game, int w, std::string_view ability, int uses) {
  Mob& mob = game.mob(w);
  const int held = mob.abilitycount;
  for (int slot = 1; slot <= held; ++slot) {
    Ability& known = mob.abilities[static_cast<std::size_t>(slot)];
    if (known.abilityname == ability) {
      known.abilityuses += uses;
      return;
    }
  }
  if (held == lastslot) return;
  mob.abilitycount += 1;
  // A slot of an earlier list keeps what is not written here.
  const auto slot = static_cast<std::size_t>(held) + 1;
  if (mob.abilities.size() <= slot) mob.abilities.resize(slot + 1);
  mob.abilities[slot].abilityname = ability;
  mob.abilities[slot].abilityuses = uses;
}

void useup(Game& game, int w, std::string_view ability, int uses) {
  Mob& mob = game.mob(w);
  for (int slot = 1; slot <= mob.abilitycount; ++slot) {
    Ability& known = mob.abilities[static_cast<std::size_t>(slot)];
    if (known.abilityname == ability) known.abilityuses -= uses;
  }
}

namespace {

// How much of a fighter is left of a mob under its conditions.
Hundredths fightweight(const Mob& mob) {
  if (hastag(mob.status, tag::dazed)) return {};
  const bool netted = hastag(mob.status, tag::netted);
  const bool pinned = hastag(mob.status, tag::pinned);
  if (netted) return Hundredths::of(pinned ? 40 : 50);
  return Hundredths::of(pinned ? 90 : 100);
}

// A fighting skill times `hundredths` hundredths.
Hundredths scaled(const Mob& mob, std::int64_t hundredths) {
  return Hundredths::whole(mob.fight) * Hundredths::of(hundredths);
}

}  // namespace

Hundredths menhere(const Game& game, int shiftz, int x, int y, int side, std::string_view reason) {
  const bool weighed = reason == "fight";
  Hundredths count;
  for (int slot = shiftz; slot <= game.mobcount; ++slot) {
    const Mob& mob = game.mob(slot);
    if (!at(mob, {x, y}) || !conscious(mob) || (side != -1 && mob.aliance != side)) continue;
    count += weighed ? fightweight(mob) : Hundredths::whole(1);
  }
  return count;
}

std::vector<int> slotsagainst(const Game& game, int side) {
  std::vector<int> slots;
  for (int slot = 1; slot <= game.mobcount; ++slot) {
    if (game.mob(slot).aliance != side) slots.push_back(slot);
  }
  return slots;
}

int itemshere(const Game& game, int shiftz, int x, int y) {
  int count = 0;
  for (int slot = shiftz; slot <= game.itemcount; ++slot) {
    if (onthemap(game.item(slot)) && at(game.item(slot), {x, y})) ++count;
  }
  return count;
}

int finditem(const Game& game, int x, int y, std::string_view name) {
  for (int slot = game.itemcount; slot >= 1; --slot) {
    const Item& item = game.item(slot);
    if (onthemap(item) && at(item, {x, y}) && item.itemname == name) return slot;
  }
  return 0;
}

namespace {

bool onthegrid(int x, int y) {
  return x >= 0 && x < gridsize && y >= 0 && y < gridsize;
}

}  // namespace

const std::string& tiletags(const Game& game, int x, int y) {
  static const std::string none;
  if (!onthegrid(x, y)) return none;
  return game.tilefx[static_cast<std::size_t>(x)][static_cast<std::size_t>(y)];
}

void addtiletag(Game& game, int x, int y, std::string_view tag, int copies) {
  if (!onthegrid(x, y)) return;
  addtag(game.tilefx[static_cast<std::size_t>(x)][static_cast<std::size_t>(y)], tag, copies);
}

Hundredths effectivefight(const Mob& mob, Hundredths crowd) {
  // Company makes up for every condition, but a crowd weighed down to a fraction is none.
  if (crowd == Hundredths::whole(2)) return scaled(mob, 125);
  if (crowd == Hundredths::whole(3)) return scaled(mob, 150);
  if (crowd == Hundredths::whole(4)) return scaled(mob, 175);
  if (crowd >= Hundredths::whole(5)) return scaled(mob, 200);
  Hundredths skill = Hundredths::whole(mob.fight);
  if (hastag(mob.status, tag::dazed)) skill *= Hundredths::of(20);
  if (hastag(mob.status, tag::netted)) skill *= Hundredths::of(50);
  if (hastag(mob.status, tag::pinned)) skill -= Hundredths::whole(1);
  return skill;
}

}  // namespace duskmarch
