#include <string>
#include <vector>

#include "audio/cues.h"
#include "heroturn/messagelog.h"
#include "heroturn/orders.h"
#include "resolution/tags.h"
#include "values/namelist.h"
#include "world/narration.h"
#include "world/whostands.h"

namespace duskmarch {

namespace {

void rememberstart(Mob& hero, const Direction& direction) {
  if (direction.dx != 0) {
    hero.startx = hero.mobx;
  } else {
    hero.starty = hero.moby;
  }
}

void takeastep(const Deed& deed) {
  rememberstart(deed.hero, deed.direction);
  place(deed.hero, step(tileof(deed.hero), deed.direction));
}

// Knocks down the unhindered enemies on a tile that the hook passes, and adds their names.
void knockdown(Game& game, Tile tile, const Direction& direction, std::vector<std::string>& names) {
  for (Mob& mob : standingon(game, tile, aliance::enemies)) {
    if (!mob.status.empty()) continue;
    place(mob, keptonthemap(game, step(tile, direction)));
    addtag(mob.status, tag::dazed);
    mob.action.clear();
    heard(game, cue::dazed, mob);
    names.push_back(mob.mobname);
  }
}

}  // namespace

void order::move(const Deed& deed) {
  takeastep(deed);
  heard(deed.game, cue::step, deed.hero);
  list1additem(deed.game,
               sentence({deed.hero.mobname, " moves to the ", deed.direction.word, ".  "}));
}

void order::dive(const Deed& deed) {
  const auto& [game, hero, other, item, direction] = deed;
  takeastep(deed);
  heard(game, cue::dive, hero);
  if (hero.engaged == 1) {
    list1additem(game, sentence({hero.mobname, " dives ", direction.word, ", out of a fight.  "}));
  } else if (hero.hasmoved == 0) {
    list1additem(game, sentence({hero.mobname, " dives to the ", direction.word, ".  "}));
  } else {
    list1additem(game,
                 sentence({hero.mobname, " dives ", direction.word, ", to get more distance.  "}));
  }
}

void order::hook(const Deed& deed) {
  const auto& [game, hero, other, item, direction] = deed;
  rememberstart(hero, direction);
  const Tile start = tileof(hero);
  heard(game, cue::hook, hero);
  const int reach = tilestotheedge(game, start, direction);
  std::vector<std::string> names;
  // From the edge inwards, so that nobody is pushed into the hook twice.
  for (int tiles = reach; tiles >= 0; --tiles) {
    knockdown(game, step(start, direction, tiles), direction, names);
  }
  const std::string past = "knocked to the ground as " + hero.mobname + " flew past.  ";
  list1additem(game, sentence({hero.mobname, " fires a grappling hook ", direction.word, ".  ",
                               joinnames(names, " was " + past, " were " + past)}));
  place(hero, step(start, direction, reach));
}

}  // namespace duskmarch
