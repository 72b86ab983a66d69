#include "campaign/vigilantes.h"

#include "world/narration.h"
#include "world/personwords.h"

namespace duskmarch {

namespace {

std::string recruitwords(const Mob& hero) {
  const std::string abilities = abilitywords(hero);
  return sentence({hero.mobname, ".  ", std::to_string(hero.maxhealth), " health, fighting skill ",
                   std::to_string(hero.maxfight), ".  ", abilities, abilities.empty() ? "" : ".  ",
                   counted(hero.upgradepoints, "point"), " to spend."});
}

}  // namespace

std::string vigilantewords(Game& game) {
  if (game.menuname == screen::creation) return newcomerwords(game);
  const int slot = game.menuname == screen::upgrades ? game.selected : game.menupos;
  if (slot < 1 || slot > heroslots) return {};
  const Mob& hero = game.mob(slot);
  return hero.aliance == aliance::heroes ? recruitwords(hero) : std::string();
}

}  // namespace duskmarch
