#include "resolution/melee.h"

#include <algorithm>

#include "audio/cues.h"
#include "heroturn/messagelog.h"
#include "resolution/tags.h"
#include "world/knockout.h"
#include "world/narration.h"
#include "world/whostands.h"

namespace duskmarch {

namespace {

constexpr Hundredths damagefactor = Hundredths::whole(4);

Hundredths effectiveonitstile(const Game& game, const Mob& mob, std::string_view reason) {
  return effectivefight(mob, menhere(game, 1, mob.mobx, mob.moby, mob.aliance, reason));
}

std::string opening(const Mob& attacker, const Mob& defender, const FightValues& values) {
  if (values.attacker == Hundredths{} && values.defender == Hundredths{}) {
    return sentence({attacker.mobname, " and ", defender.mobname,
                     " square eachother up, pausing to catch their breath.  "});
  }
  return sentence({attacker.mobname, " fights with ", defender.mobname, ".  "});
}

void exchanged(Mob& tiring, Mob& other) {
  tiring.fight -= 1;
  tiring.rested = 0;
  other.rested = 0;
}

std::string blow(Game& game, Mob& winner, Mob& loser, std::int64_t damage) {
  loser.health -= damage;
  heardblow(game, loser, damage);
  exchanged(winner, loser);
  const bool falls = !conscious(loser);
  if (falls) {
    winner.target = 0;
    if (winner.action == tag::fight) winner.action.clear();
  }
  return sentence({"  ", loser.mobname, " loses ", std::to_string(damage),
                   falls ? " health and falls to the floor unconscious.  " : " health.  "});
}

void endaboveorat0(Number& fight) {
  if (fight < 0) fight = 0;
}

bool holdsinafight(const Mob& opponent, const Mob& mob) {
  return conscious(opponent) && sametile(opponent, mob) && hastag(opponent.action, tag::fight) &&
         opponent.fight > 0 && opponent.status.empty();
}

}  // namespace

FightValues calcfight(const Game& game, int z) {
  const Mob& attacker = game.mob(z);
  // Only those who can still fight back an attacker; everyone conscious stands by a defender.
  return {.attacker = effectiveonitstile(game, attacker, "fight"),
          .defender = effectiveonitstile(game, game.mob(attacker.target), "")};
}

bool canfight(const Game& game, const Mob& mob) {
  const Mob& foe = game.mob(mob.target);
  return conscious(foe) && sametile(foe, mob) && foe.aliance != mob.aliance;
}

void engagedcheck(Game& game, int slot) {
  engagedcheck(game, slot, slotsagainst(game, game.mob(slot).aliance));
}

void engagedcheck(Game& game, int slot, std::span<const int> opponents) {
  Mob& mob = game.mob(slot);
  const bool held = std::ranges::any_of(
      opponents, [&](int opponent) { return holdsinafight(game.mob(opponent), mob); });
  mob.engaged = held ? 1 : 0;
}

std::string exchangeblows(Game& game, Mob& attacker, Mob& defender, const FightValues& values) {
  const std::int64_t damage = (damagefactor * (values.attacker - values.defender)).truncated();
  std::string report;
  if (damage > 0) {
    report = blow(game, attacker, defender, damage);
    if (!conscious(defender)) creditknockout(attacker);
  } else if (damage < 0) {
    report = blow(game, defender, attacker, -damage);
  } else if (values.defender != Hundredths{}) {
    exchanged(attacker, defender);
    heard(game, cue::blowblocked, defender);
    report = "  No damage is dealt.  ";
  }
  endaboveorat0(attacker.fight);
  endaboveorat0(defender.fight);
  return report;
}

std::string meleeexchange(Game& game, int x) {
  Mob& attacker = game.mob(x);
  Mob& defender = game.mob(attacker.target);
  const FightValues values = calcfight(game, x);
  return opening(attacker, defender, values) + exchangeblows(game, attacker, defender, values);
}

void regainfightingpoints(Game& game) {
  for (Mob& mob : standing(game)) {
    if (!mob.status.empty()) continue;
    if (mob.rested != 1 || mob.fight >= mob.maxfight) continue;
    mob.fight += 1;
    list1additem(game, mob.mobname + " regains 1 fighting point.");
  }
}

}  // namespace duskmarch
