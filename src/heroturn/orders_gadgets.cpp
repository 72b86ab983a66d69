#include <algorithm>
#include <cstdlib>
#include <string>
#include <vector>

#include "audio/cues.h"
#include "heroturn/abilitynumbers.h"
#include "heroturn/messagelog.h"
#include "heroturn/orders.h"
#include "resolution/tags.h"
#include "values/namelist.h"
#include "world/knockout.h"
#include "world/narration.h"
#include "world/whostands.h"

namespace duskmarch {

namespace {

// A blast makes a gunman an ordinary enemy for good.
std::string disarm(Mob& gunman) {
  gunman.mobtype = mobtype::ordinary;
  gunman.action.clear();
  return sentence({gunman.mobname, " drops ", hisorher(gunman.gender), " gun.  "});
}

// The enemies on a smoking tile forget what they were about; adds their names.
void chokeenemies(Game& game, Tile tile, std::vector<std::string>& names) {
  for (Mob& mob : standingon(game, tile, aliance::enemies)) {
    mob.action.clear();
    mob.target = 0;
    names.push_back(mob.mobname);
  }
}

}  // namespace

void order::blast(const Deed& deed) {
  const auto& [game, hero, foe, item, direction] = deed;
  foe.health -= hero.gun;
  heard(game, cue::blast, foe);
  hearddazingblow(game, foe, hero.gun);
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

void order::bolas(const Deed& deed) {
  const auto& [game, hero, foe, item, direction] = deed;
  foe.fight = foe.fight / number::bolasdivisor;
  heard(game, cue::bolas, foe);
  const std::string_view himher = himorher(foe.gender);
  list1additem(game, sentence({hero.mobname, " flings a bolas at ", foe.mobname,
                               ", binding and tying around ", himher, " and making it hard for ",
                               himher, " to fight.  "}));
}

void order::net(const Deed& deed) {
  const auto& [game, hero, foe, item, direction] = deed;
  addtag(foe.status, tag::netted, number::netturns);
  heard(game, cue::net, foe);
  list1additem(game,
               sentence({hero.mobname, " throws a net which twists and wraps around ", foe.mobname,
                         "'s legs, holding ", himorher(foe.gender), " in place.  "}));
}

void order::pin(const Deed& deed) {
  const auto& [game, hero, foe, item, direction] = deed;
  addtag(foe.status, tag::pinned, number::pinturns);
  heard(game, cue::pin, foe);
  list1additem(game, sentence({hero.mobname, " throws a knife which stabs through ", foe.mobname,
                               "'s clothes and pins ", himorher(foe.gender), " to the wall.  "}));
}

void order::grapnel(const Deed& deed) {
  const auto& [game, hero, foe, item, direction] = deed;
  heard(game, cue::grapnel, foe);
  place(foe, tileof(hero));
  foe.health -= number::grapneldamage;
  hearddazingblow(game, foe, number::grapneldamage);
  foe.action.clear();
  addtag(foe.status, tag::dazed);
  std::string line =
      sentence({hero.mobname, " fires a small grapnelling hook into ", foe.mobname, ", yanks ",
                himorher(foe.gender), " through the air, and stops ", hisorher(foe.gender),
                " flight with a powerful punch to the face.  ", foe.mobname, " takes ",
                std::to_string(number::grapneldamage), " damage and hits the floor "});
  if (conscious(foe)) {
    line += "dazed.  ";
  } else {
    line += "completely unconscious.  ";
    creditknockout(hero);
  }
  list1additem(game, line);
}

void order::heal(const Deed& deed) {
  const auto& [game, hero, ally, item, direction] = deed;
  const int amount = std::min(ally.maxhealth - ally.health, number::healing);
  ally.health += amount;
  heard(game, cue::heal, ally);
  std::string line = hero.mobname + " heals ";
  line += &ally == &hero ? sentence({himorher(hero.gender), "self"}) : ally.mobname;
  line += amount == 1 ? " for 1 point of health.  "
                      : " for " + std::to_string(amount) + " points of health.  ";
  list1additem(game, line);
}

void order::shield(const Deed& deed) {
  const auto& [game, hero, other, item, direction] = deed;
  int allies = 0;
  for (Mob& mob : standing(game, hero.aliance)) {
    if (&mob == &hero) continue;
    addtag(mob.action, tag::shield);
    ++allies;
  }
  addtag(hero.action, tag::shield);
  heard(game, cue::shield, hero);
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

void order::smokebombs(const Deed& deed) {
  const auto& [game, hero, other, item, direction] = deed;
  heard(game, cue::smokebombs, hero);
  std::vector<std::string> names;
  for (int x = 1; x <= game.mapwidth; ++x) {
    for (int y = 1; y <= game.mapheight; ++y) {
      const int distance = std::abs(hero.mobx - x) + std::abs(hero.moby - y);
      if (distance > number::smokereach) continue;
      addtiletag(
          game, x, y, tag::smoke,
          distance <= number::thicksmokereach ? number::thicksmoketurns : number::smoketurns);
      chokeenemies(game, {x, y}, names);
    }
  }
  list1additem(
      game,
      sentence({hero.mobname, " throws down a handful of smoke bombs, engulfing the area around ",
                himorher(hero.gender), ".  ",
                joinnames(names, " is gasping in the smoke.  ", " are gasping in the smoke.  ")}));
}

void order::secondwind(const Deed& deed) {
  const auto& [game, hero, other, item, direction] = deed;
  hero.fight = hero.maxfight;
  heard(game, cue::secondwind, hero);
  list1additem(game, sentence({hero.mobname, " has gained a burst of inner strength, putting ",
                               himorher(hero.gender), " back to full fighting capacity.  "}));
}

}  // namespace duskmarch
