#include "resolution/smoke.h"

#include <string>

#include "heroturn/messagelog.h"
#include "resolution/tags.h"
#include "world/tables.h"

namespace duskmarch {

bool insmoke(const Game& game, const Mob& mob) {
  return hastag(tiletags(game, mob.mobx, mob.moby), tag::smoke);
}

void thinsmoke(Game& game) {
  bool cleared = false;
  for (int x = 1; x <= game.mapwidth; ++x) {
    for (int y = 1; y <= game.mapheight; ++y) {
      std::string& tags = game.tilefx[static_cast<std::size_t>(x)][static_cast<std::size_t>(y)];
      if (!hastag(tags, tag::smoke)) continue;
      removetag(tags, tag::smoke);
      cleared = cleared || !hastag(tags, tag::smoke);
    }
  }
  if (cleared) list1additem(game, "Smoke has cleared.  ");
}

}  // namespace duskmarch
