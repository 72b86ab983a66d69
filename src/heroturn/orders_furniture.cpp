#include <string>
#include <vector>

#include "audio/cues.h"
#include "heroturn/abilitynumbers.h"
#include "heroturn/messagelog.h"
#include "heroturn/orders.h"
#include "resolution/tags.h"
#include "values/namelist.h"
#include "world/furniture.h"
#include "world/knockout.h"
#include "world/narration.h"
#include "world/whostands.h"

namespace duskmarch {

namespace {

void knockover(Mob& victim) {
  addtag(victim.status, tag::dazed);
  victim.action.clear();
}

void knockoverhurt(Game& game, Mob& victim, int damage) {
  knockover(victim);
  victim.health -= damage;
  hearddazingblow(game, victim, damage);
}

}  // namespace

void order::fliptable(const Deed& deed) {
  deed.item.itemhealth = 0;
  heard(deed.game, cue::tableflipped, deed.hero);
  addtiletag(deed.game, deed.hero.mobx, deed.hero.moby, tag::table, 1);
}

void order::throwtable(const Deed& deed) {
  const auto& [game, hero, other, table, direction] = deed;
  const Tile landing = keptonthemap(game, step(tileof(hero), direction));
  heard(game, cue::tablethrown, hero);
  heard(game, cue::tablelanded, landing.x, landing.y);
  std::vector<std::string> hit;
  std::vector<std::string> knockedout;
  for (Mob& mob : standingon(game, landing, aliance::enemies)) {
    knockoverhurt(game, mob, tabledamage);
    hit.push_back(mob.mobname);
    if (conscious(mob)) continue;
    knockedout.push_back(mob.mobname);
    creditknockout(hero);
  }
  crash(table, landing);
  const std::string knockedover = sentence({" knocked over by the incoming table, suffering ",
                                            std::to_string(tabledamage), " damage.  "});
  std::string line = sentence(
      {hero.mobname, " lifts and throws a table ", direction.word, ".  ",
       joinnames(hit, " was" + knockedover, " were" + knockedover),
       joinnames(knockedout, " was knocked unconscious.  ", " were knocked unconscious.  ")});
  if (!onthemap(table)) line += "The table has splintered into scraps of wood.  ";
  list1additem(game, line);
}

void order::throwchair(const Deed& deed) {
  const auto& [game, hero, other, chair, direction] = deed;
  heard(game, cue::chairthrown, hero);
  std::string line = chairthrown(hero, direction);
  if (Mob* const victim = firstinline(game, tileof(hero), direction, aliance::enemies)) {
    heard(game, cue::chairlanded, *victim);
    knockoverhurt(game, *victim, chairdamage);
    line += chairhit(*victim);
    if (!conscious(*victim)) creditknockout(hero);
    crash(chair, tileof(*victim));
  }
  list1additem(game, line);
}

void order::throwperson(const Deed& deed) {
  const auto& [game, hero, thrown, item, direction] = deed;
  const Tile landing = keptonthemap(game, step(tileof(hero), direction));
  heard(game, cue::personthrown, hero);
  heard(game, cue::personlanded, landing.x, landing.y);
  std::vector<std::string> victims;
  for (Mob& mob : standingon(game, landing, aliance::enemies)) {
    if (!mob.status.empty()) continue;
    knockover(mob);
    heard(game, cue::dazed, mob);
    victims.push_back(mob.mobname);
  }
  place(thrown, landing);
  thrown.action.clear();
  thrown.target = 0;
  addtag(thrown.status, tag::dazed, number::throwndaze);
  heard(game, cue::dazed, thrown);
  removeeverytag(thrown.status, tag::pinned);
  const std::string ending = " knocked over as " + thrown.mobname + " came crashing down.  ";
  list1additem(game, sentence({hero.mobname, " hurls ", thrown.mobname, " ", direction.word, ".  ",
                               joinnames(victims, " was" + ending, " were" + ending)}));
}

}  // namespace duskmarch
