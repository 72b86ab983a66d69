#include <algorithm>
#include <string>

#include "heroturn/heroactions.h"
#include "heroturn/messagelog.h"
#include "resolution/melee.h"
#include "resolution/tags.h"
#include "world/mapspeech.h"
#include "world/narration.h"
#include "world/tables.h"

namespace duskmarch {

void option::target(Game& game, Mob& hero, std::string_view name) {
  for (int slot = 1; slot <= game.mobcount; ++slot) {
    const Mob& foe = game.mob(slot);
    if (foe.mobname != name) continue;
    hero.target = slot;
    hero.hasacted = 1;
    hero.action = tag::fight;
    if (hastag(foe.status, tag::dazed)) {
      list1additem(game,
                   sentence({hero.mobname, " crouches over ", foe.mobname, " preparing to hit ",
                             himorher(foe.gender), " while he's down.  "}));
    } else {
      list1additem(game, sentence({hero.mobname, " sizes up ", foe.mobname, " for a fight.  "}));
    }
  }
}

void option::targetnobody(Game& game, Mob& hero) {
  hero.target = 0;
  removeeverytag(hero.action, tag::fight);
  list1additem(game,
               hero.mobname + " holds back from proactively engaging in hand to hand combat.  ");
}

void option::combo(Game& game, Mob& hero, Mob& foe) {
  spendaction(game, hero, "Combo");
  FightValues values = calcfight(game, game.selected);
  values.attacker += values.attacker;
  std::string line;
  if (values.attacker == Hundredths{} && values.defender == Hundredths{}) {
    line = sentence({hero.mobname, " and ", foe.mobname,
                     " exchange attacks and blocks, then pausing to catch their breath.  "});
  } else {
    line = sentence({hero.mobname, " unleashes a series of attacks on ", foe.mobname, ".  "});
  }
  line += exchangeblows(hero, foe, values);
  list1additem(game, line);
}

void option::headbutt(Game& game, Mob& hero, Mob& foe) {
  spendaction(game, hero, "Headbutt");
  hero.health -= 2;
  foe.health -= hero.maxfight;
  std::string line =
      sentence({hero.mobname, " headbutts ", foe.mobname, " dealing ",
                std::to_string(hero.maxfight), " damage but also taking 2 damage.  "});
  if (!conscious(foe)) {
    line += foe.mobname + " drops to the floor unconscious.  ";
    creditknockout(hero);
  }
  addtag(foe.status, tag::dazed);
  list1additem(game, line);
}

void option::kick(Game& game, Mob& hero, Mob& foe) {
  spendaction(game, hero, "Kick");
  const Tile from = tileof(hero);
  const Tile kicked = tileof(foe);
  const Tile landing = keptonthemap(game, {2 * kicked.x - from.x, 2 * kicked.y - from.y});
  std::string line = sentence({hero.mobname, " does a flying kick, knocking ", foe.mobname,
                               " to the floor at ", location(landing.x, landing.y), ".  "});
  place(hero, kicked);
  place(foe, landing);
  foe.action.clear();
  foe.target = 0;
  addtag(foe.status, tag::dazed);
  foe.health -= hero.fight;
  line += sentence({foe.mobname, " suffered ", std::to_string(hero.fight)});
  if (conscious(foe)) {
    line += " damage and is currently dazed.  ";
  } else {
    line += " damage and won't be getting back up.  ";
    creditknockout(hero);
  }
  list1additem(game, line);
}

void option::dust(Game& game, Mob& hero, std::string_view name) {
  spendaction(game, hero, "Dust");
  for (int slot = 1; slot <= game.mobcount; ++slot) {
    Mob& foe = game.mob(slot);
    if (foe.mobname != name) continue;
    hero.target = slot;
    foe.fight = std::max(foe.fight - 3, 0);
    hero.fight = std::min(hero.fight + 1, int{hero.maxfight});
    hero.action = tag::fight;
    list1additem(game,
                 sentence({hero.mobname, " blasts a puff of sand into ", foe.mobname,
                           "'s eyes, distracting ", himorher(foe.gender), " during the fight.  "}));
  }
}

}  // namespace duskmarch
