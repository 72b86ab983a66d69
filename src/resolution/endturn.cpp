#include "resolution/endturn.h"

#include <string>
#include <vector>

#include "audio/cues.h"
#include "heroturn/messagelog.h"
#include "heroturn/optionlist.h"
#include "resolution/enemies.h"
#include "resolution/gunfire.h"
#include "resolution/melee.h"
#include "resolution/smoke.h"
#include "resolution/tags.h"
#include "shell/speech/pages.h"
#include "shell/speech/speech.h"
#include "world/drawnmap.h"
#include "world/mapspeech.h"
#include "world/narration.h"
#include "world/nexthero.h"
#include "world/whostands.h"

namespace duskmarch {

namespace {

void logreport(Game& game, const std::string& report) {
  if (!report.empty()) list1additem(game, report);
}

void opening(Game& game) {
  game.turnsummary.clear();
  game.list1.clear();
  game.turnnumber += 1;
  if (const int first = firsthero(game, 1, game.mobcount); first != 0) game.selected = first;
  list1additem(game, "-End of turn number " + std::to_string(game.turnnumber) + ".");
}

void keeptargets(Game& game) {
  for (Mob& mob : everyone(game)) mob.rested = 1;
  for (Mob& enemy : standing(game, aliance::enemies)) {
    if (!conscious(game.mob(enemy.target))) enemy.target = 0;
    if (enemy.target == 0) pickatarget(game, slotof(game, enemy));
  }
}

void performchosenoptions(Game& game) {
  for (const Mob& mob : standing(game)) {
    if (mob.mobtype != mobtype::gifted || !mob.status.empty()) continue;
    doenemyoption(game, slotof(game, mob), mob.action);
  }
}

bool canaim(const Game& game, const Mob& gunman) {
  return gunman.target != 0 && !insmoke(game, game.mob(gunman.target));
}

// Carries out what a mob planned; returns its report.
std::string resolve(Game& game, Mob& mob) {
  std::string report;
  if (!mob.status.empty()) return report;
  while (true) {
    if (hastag(mob.action, tag::shootopening)) return volley(game, mob);
    if (hastag(mob.action, tag::loaded)) {
      if (!canaim(game, mob)) return report;
      report = aim(game, mob);
    }
    if (hastag(mob.action, tag::reload)) report = load(game, mob);
    if (!hastag(mob.action, tag::fight)) return report;
    if (canfight(game, mob)) return meleeexchange(game, slotof(game, mob));
    // The fight is off. What else is planned gets its turn now, even the gun aimed just above.
    removeeverytag(mob.action, tag::fight);
    mob.target = 0;
  }
}

void resolveplans(Game& game) {
  for (Mob& mob : standing(game)) logreport(game, resolve(game, mob));
}

// Takes one turn off a mob's daze; returns what is told of it.
std::string shakeoffdaze(Game& game, Mob& mob) {
  removetag(mob.status, tag::dazed);
  if (hastag(mob.status, tag::dazed)) return mob.mobname + " lies dazed on the floor.  ";
  heard(game, cue::freeagain, mob);
  return sentence(
      {mob.mobname, " shakes off some dizziness and gets to ", hisorher(mob.gender), " feet.  "});
}

void moveandplan(Game& game) {
  for (Mob& mob : standing(game)) {
    std::string report;
    if (mob.aliance == aliance::enemies) report = walkandplan(game, slotof(game, mob));
    if (hastag(mob.status, tag::dazed)) report = shakeoffdaze(game, mob);
    logreport(game, report);
  }
}

std::string strugglewithnet(Game& game, Mob& mob) {
  removetag(mob.status, tag::netted);
  if (!hastag(mob.status, tag::netted)) {
    heard(game, cue::freeagain, mob);
    return mob.mobname + " finally gets free of the net and tosses it aside.  ";
  }
  return sentence(
      {mob.mobname, " struggles to free ", himorher(mob.gender), "self from the net.  "});
}

std::string strugglewithknife(Game& game, Mob& mob) {
  removetag(mob.status, tag::pinned);
  const bool free = !hastag(mob.status, tag::pinned);
  if (free) heard(game, cue::freeagain, mob);
  return sentence({mob.mobname,
                   free ? " finally yanks out the knife that had "
                        : " struggles to pull out the knife that has ",
                   himorher(mob.gender), " pinned.  "});
}

void struggle(Game& game) {
  for (Mob& mob : standing(game)) {
    if (mob.rested != 1) continue;
    if (hastag(mob.status, tag::netted)) {
      list1additem(game, strugglewithnet(game, mob));
    } else if (hastag(mob.status, tag::pinned)) {
      list1additem(game, strugglewithknife(game, mob));
    }
  }
}

// The last free hero on the tile where `mob` arrives; null when there is none.
const Mob* heroatarrival(const Game& game, const Mob& mob) {
  const Mob* last = nullptr;
  for (const Mob& hero : standingon(game, tileof(mob))) {
    if (hero.mobtype == mobtype::hero && hero.engaged == 0) last = &hero;
  }
  return last;
}

void bringin(Game& game, Mob& mob) {
  mob.health = mob.maxhealth;
  heard(game, cue::newcomer, mob);
  std::string line = mob.spawntext;
  replaceeverytag(line, "$N", mob.mobname);
  line += " Location " + location(mob.mobx, mob.moby);
  const Mob* hero = mob.mobtype == mobtype::ordinary ? heroatarrival(game, mob) : nullptr;
  // Told only: the newcomer takes its target at the next end of turn.
  line += hero == nullptr ? ".  " : sentence({" and engaged ", hero->mobname, " in a fight.  "});
  list1additem(game, line);
}

void freshturn(Game& game) {
  const std::vector<int> againstenemies = slotsagainst(game, aliance::enemies);
  for (Mob& mob : everyone(game)) {
    mob.hasmoved = 0;
    mob.hasacted = 0;
    if (mob.spawntime == game.turnnumber) bringin(game, mob);
    removetag(mob.action, tag::shield);
    if (mob.aliance == aliance::enemies) {
      engagedcheck(game, slotof(game, mob), againstenemies);  // many, who ask about the same few
    } else {
      engagedcheck(game, slotof(game, mob));
    }
    if (mob.mobtype == mobtype::gunman && mob.action.empty()) mob.action = tag::reload;
  }
}

void closing(Game& game) {
  if (!standing(game, aliance::heroes).empty()) heard(game, cue::heroesturn);
  playendofturn(game);
  sayit(game, game.turnsummary);
  showsummary(game);
  focussummary(game);
  listoptions(game, 0);
  drawscreen(game);
}

}  // namespace

void endturn(Game& game) {
  opening(game);
  keeptargets(game);
  performchosenoptions(game);
  resolveplans(game);
  regainfightingpoints(game);
  moveandplan(game);
  struggle(game);
  freshturn(game);
  thinsmoke(game);
  closing(game);
}

}  // namespace duskmarch
