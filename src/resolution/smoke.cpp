#include "resolution/smoke.h"

#include <string>

#include "audio/cues.h"
#include "heroturn/messagelog.h"
#include "resolution/tags.h"
#include "world/directions.h"
#include "world/tables.h"

namespace duskmarch {

bool insmoke(const Game& game, const Mob& mob) {
  return hastag(tiletags(game, mob.mobx, mob.moby), tag::smoke);
}

void thinsmoke(Game& game) {
  bool cleared = false;
  Tile first;
  Tile last;
  for (int x = 1; x <= game.mapwidth; ++x) {
    for (int y = 1; y <= game.mapheight; ++y) {
      std::string& tags = game.tilefx[static_cast<std::size_t>(x)][static_cast<std::size_t>(y)];
      if (!hastag(tags, tag::smoke)) continue;
      removetag(tags, tag::smoke);
      if (hastag(tags, tag::smoke)) continue;
      last = {x, y};
      if (!cleared) first = last;
      cleared = true;
    }
  }
  if (!cleared) return;
  heard(game, cue::smokegone, (first.x + last.x) / 2, (first.y + last.y) / 2);
  list1additem(game, "Smoke has cleared.  ");
}

}  // namespace duskmarch
