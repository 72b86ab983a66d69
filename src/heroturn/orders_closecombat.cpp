#include <algorithm>
#include <string>

#include "audio/cues.h"
#include "heroturn/abilitynumbers.h"
#include "heroturn/messagelog.h"
#include "heroturn/orders.h"
#include "resolution/melee.h"
#include "resolution/tags.h"
#include "world/knockout.h"
#include "world/mapspeech.h"
#include "world/narration.h"
#include "world/tables.h"

namespace duskmarch {

void order::target(const Deed& deed) {
  const auto& [game, hero, foe, item, direction] = deed;
  hero.action = tag::fight;
  heard(game, cue::targetchosen, foe);
  if (hastag(foe.status, tag::dazed)) {
    list1additem(game, sentence({hero.mobname, " crouches over ", foe.mobname, " preparing to hit ",
                                 himorher(foe.gender), " while he's down.  "}));
  } else {
    list1additem(game, sentence({hero.mobname, " sizes up ", foe.mobname, " for a fight.  "}));
  }
}

void order::targetnobody(const Deed& deed) {
  deed.hero.target = 0;
  removeeverytag(deed.hero.action, tag::fight);
  list1additem(deed.game, deed.hero.mobname +
                              " holds back from proactively engaging in hand to hand combat.  ");
}

void order::combo(const Deed& deed) {
  const auto& [game, hero, foe, item, direction] = deed;
  FightValues values = calcfight(game, game.selected);
  values.attacker *= Hundredths::whole(number::comboskill);
  std::string line;
  if (values.attacker == Hundredths{} && values.defender == Hundredths{}) {
    line = sentence({hero.mobname, " and ", foe.mobname,
                     " exchange attacks and blocks, then pausing to catch their breath.  "});
  } else {
    line = sentence({hero.mobname, " unleashes a series of attacks on ", foe.mobname, ".  "});
  }
  heard(game, cue::combo, foe);
  line += exchangeblows(game, hero, foe, values);
  list1additem(game, line);
}

void order::headbutt(const Deed& deed) {
  const auto& [game, hero, foe, item, direction] = deed;
  hero.health -= number::headbuttcost;
  foe.health -= hero.maxfight;
  std::string line = sentence({hero.mobname, " headbutts ", foe.mobname, " dealing ",
                               std::to_string(hero.maxfight), " damage but also taking ",
                               std::to_string(number::headbuttcost), " damage.  "});
  if (!conscious(foe)) {
    line += foe.mobname + " drops to the floor unconscious.  ";
    creditknockout(hero);
  }
  addtag(foe.status, tag::dazed);
  heard(game, cue::headbutt, foe);
  hearddazingblow(game, foe, hero.maxfight);
  heardblow(game, hero, number::headbuttcost);
  list1additem(game, line);
}

void order::kick(const Deed& deed) {
  const auto& [game, hero, foe, item, direction] = deed;
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
  heard(game, cue::kick, kicked.x, kicked.y);
  hearddazingblow(game, foe, hero.fight);
  line += sentence({foe.mobname, " suffered ", std::to_string(hero.fight)});
  if (conscious(foe)) {
    line += " damage and is currently dazed.  ";
  } else {
    line += " damage and won't be getting back up.  ";
    creditknockout(hero);
  }
  list1additem(game, line);
}

void order::dust(const Deed& deed) {
  const auto& [game, hero, foe, item, direction] = deed;
  foe.fight = std::max(foe.fight - number::dustskilllost, 0);
  hero.fight = std::min(hero.fight + number::dustskillwon, int{hero.maxfight});
  hero.action = tag::fight;
  heard(game, cue::dust, foe);
  list1additem(game,
               sentence({hero.mobname, " blasts a puff of sand into ", foe.mobname,
                         "'s eyes, distracting ", himorher(foe.gender), " during the fight.  "}));
}

}  // namespace duskmarch
