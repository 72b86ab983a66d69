#include <algorithm>
#include <cstdlib>
#include <string>
#include <vector>

#include "heroturn/heroactions.h"
#include "heroturn/messagelog.h"
#include "resolution/tags.h"
#include "values/namelist.h"
#include "world/narration.h"
#include "world/tables.h"

namespace duskmarch {

namespace {

// A blast makes a gunman an ordinary enemy for good.
std::string disarm(Mob& gunman) {
  gunman.mobtype = mobtype::ordinary;
  gunman.action.clear();
  return sentence({gunman.mobname, " drops ", hisorher(gunman.gender), " gun.  "});
}

// The enemies on a smoking tile forget what they were about; adds their names.
void chokeenemies(Game& game, int x, int y, std::vector<std::string>& names) {
  for (int slot = 1; slot <= game.mobcount; ++slot) {
    Mob& mob = game.mob(slot);
    if (!conscious(mob) || mob.aliance != aliance::enemies || !at(mob, x, y)) continue;
    mob.action.clear();
    mob.target = 0;
    names.push_back(mob.mobname);
  }
}

}  // namespace

void option::blast(Game& game, Mob& hero, Mob& foe) {
  spendaction(game, hero, "Blast");
  foe.health -= hero.gun;
  std::string line =
      sentence({hero.mobname, " aims at ", foe.mobname, " and lets loose an energy blast, causing ",
                std::to_string(hero.gun), " damage"});
  if (conscious(foe)) {
    line += ".  ";
    if (foe.mobtype == mobtype::gunman) line += disarm(foe);
  } else {
    line += sentence({" and knocking ", himorher(foe.gender), " unconscious.  "});
    creditknockout(hero);
  }
  addtag(foe.status, tag::dazed);
  list1additem(game, line);
}

void option::bolas(Game& game, Mob& hero, Mob& foe) {
  spendaction(game, hero, "Bolas");
  foe.fight = foe.fight / 5;
  const std::string_view himher = himorher(foe.gender);
  list1additem(game, sentence({hero.mobname, " flings a bolas at ", foe.mobname,
                               ", binding and tying around ", himher, " and making it hard for ",
                               himher, " to fight.  "}));
}

void option::net(Game& game, Mob& hero, Mob& foe) {
  spendaction(game, hero, "Net");
  addtag(foe.status, tag::netted, 2);
  list1additem(game,
               sentence({hero.mobname, " throws a net which twists and wraps around ", foe.mobname,
                         "'s legs, holding ", himorher(foe.gender), " in place.  "}));
}

void option::pin(Game& game, Mob& hero, Mob& foe) {
  spendaction(game, hero, "Pin");
  addtag(foe.status, tag::pinned, 2);
  list1additem(game, sentence({hero.mobname, " throws a knife which stabs through ", foe.mobname,
                               "'s clothes and pins ", himorher(foe.gender), " to the wall.  "}));
}

void option::grapnel(Game& game, Mob& hero, Mob& foe) {
  spendaction(game, hero, "Grapnel");
  place(foe, tileof(hero));
  foe.health -= 6;
  foe.action.clear();
  addtag(foe.status, tag::dazed);
  std::string line =
      sentence({hero.mobname, " fires a small grapnelling hook into ", foe.mobname, ", yanks ",
                himorher(foe.gender), " through the air, and stops ", hisorher(foe.gender),
                " flight with a powerful punch to the face.  ", foe.mobname});
  if (conscious(foe)) {
    line += " takes 6 damage and hits the floor dazed.  ";
  } else {
    line += " takes 6 damage and hits the floor completely unconscious.  ";
    creditknockout(hero);
  }
  list1additem(game, line);
}

bool option::lackshealth(const Mob& mob) {
  return mob.health < mob.maxhealth;
}

void option::heal(Game& game, Mob& hero, Mob& ally) {
  const int amount = std::min(ally.maxhealth - ally.health, 10);
  spendaction(game, hero, "Heal");
  ally.health += amount;
  std::string line = hero.mobname + " heals ";
  line += &ally == &hero ? sentence({himorher(hero.gender), "self"}) : ally.mobname;
  line += amount == 1 ? " for 1 point of health.  "
                      : " for " + std::to_string(amount) + " points of health.  ";
  list1additem(game, line);
}

void option::shield(Game& game, Mob& hero) {
  int allies = 0;
  for (int slot = 1; slot <= game.mobcount; ++slot) {
    Mob& mob = game.mob(slot);
    if (&mob == &hero || !conscious(mob) || mob.aliance != hero.aliance) continue;
    addtag(mob.action, tag::shield);
    ++allies;
  }
  addtag(hero.action, tag::shield);
  spendaction(game, hero, "Shield");
  const std::string_view his = hisorher(hero.gender);
  std::string line = sentence({hero.mobname, " raises ", his, " shield "});
  if (allies == 0) {
    line += "for cover.  ";
  } else {
    line += sentence({"to cover ", himorher(hero.gender), "self and "});
    line += allies == 1 ? "an ally.  " : sentence({his, " allies.  "});
  }
  list1additem(game, line);
}

void option::smokebombs(Game& game, Mob& hero) {
  spendaction(game, hero, "Smoke bombs");
  std::vector<std::string> names;
  for (int x = 1; x <= game.mapwidth; ++x) {
    for (int y = 1; y <= game.mapheight; ++y) {
      const int distance = std::abs(hero.mobx - x) + std::abs(hero.moby - y);
      if (distance > 2) continue;
      addtiletag(game, x, y, tag::smoke, distance <= 1 ? 4 : 2);
      chokeenemies(game, x, y, names);
    }
  }
  list1additem(
      game,
      sentence({hero.mobname, " throws down a handful of smoke bombs, engulfing the area around ",
                himorher(hero.gender), ".  ",
                joinnames(names, " is gasping in the smoke.  ", " are gasping in the smoke.  ")}));
}

void option::secondwind(Game& game, Mob& hero) {
  spendaction(game, hero, "Second wind");
  hero.fight = hero.maxfight;
  list1additem(game, sentence({hero.mobname, " has gained a burst of inner strength, putting ",
                               himorher(hero.gender), " back to full fighting capacity.  "}));
}

}  // namespace duskmarch
