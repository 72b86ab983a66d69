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

void rememberstart(Mob& hero, const Direction& direction) {
  if (direction.dx != 0) {
    hero.startx = hero.mobx;
  } else {
    hero.starty = hero.moby;
  }
}

// Knocks down the unhindered enemies on a tile that the hook passes, and adds their names.
void knockdown(Game& game, Tile tile, const Direction& direction, std::vector<std::string>& names) {
  for (int slot = 1; slot <= game.mobcount; ++slot) {
    Mob& mob = game.mob(slot);
    if (!conscious(mob) || mob.aliance != aliance::enemies || !at(mob, tile.x, tile.y)) continue;
    if (!mob.status.empty()) continue;
    place(mob, keptonthemap(game, step(tile, direction)));
    addtag(mob.status, tag::dazed);
    mob.action.clear();
    names.push_back(mob.mobname);
  }
}

}  // namespace

void option::move(Game& game, Mob& hero, const Direction& direction) {
  rememberstart(hero, direction);
  place(hero, step(tileof(hero), direction));
  hero.hasmoved = 1;
  list1additem(game, sentence({hero.mobname, " moves to the ", direction.word, ".  "}));
}

void option::dive(Game& game, Mob& hero, const Direction& direction) {
  rememberstart(hero, direction);
  place(hero, step(tileof(hero), direction));
  spendaction(game, hero, "Dive");
  if (hero.engaged == 1) {
    list1additem(game, sentence({hero.mobname, " dives ", direction.word, ", out of a fight.  "}));
  } else if (hero.hasmoved == 0) {
    list1additem(game, sentence({hero.mobname, " dives to the ", direction.word, ".  "}));
  } else {
    list1additem(game,
                 sentence({hero.mobname, " dives ", direction.word, ", to get more distance.  "}));
  }
}

void option::hook(Game& game, Mob& hero, const Direction& direction) {
  rememberstart(hero, direction);
  spendaction(game, hero, "Hook");
  const Tile start = tileof(hero);
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
