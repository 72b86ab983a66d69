#include "campaign/learning.h"

#include "heroturn/abilitynumbers.h"
#include "world/tables.h"

namespace duskmarch {

void learn(Game& game, int hero, std::string_view ability) {
  give(game, hero, ability, 1);
  if (ability == "Blast" && game.mob(hero).gun == 0) game.mob(hero).gun = number::blastgun;
}

}  // namespace duskmarch
