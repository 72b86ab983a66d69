#include "world/nexthero.h"

#include "world/tables.h"

namespace duskmarch {

int firsthero(const Game& game, int first, int last) {
  for (int slot = first; slot <= last; ++slot) {
    const Mob& mob = game.mob(slot);
    if (mob.aliance == aliance::heroes && conscious(mob)) return slot;
  }
  return 0;
}

int nexthero(const Game& game) {
  const int later = firsthero(game, game.selected + 1, game.mobcount);
  return later != 0 ? later : firsthero(game, 1, game.selected - 1);
}

}  // namespace duskmarch
