#include "campaign/learning.h"

#include "heroturn/ordertable.h"
#include "world/tables.h"

namespace duskmarch {

void learn(Game& game, int hero, std::string_view ability) {
  give(game, hero, ability, 1);
  Mob& learner = game.mob(hero);
  if (const int gun = findorder(ability)->gun; gun > 0 && learner.gun == 0) learner.gun = gun;
}

}  // namespace duskmarch
