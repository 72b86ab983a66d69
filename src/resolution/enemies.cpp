#include "resolution/enemies.h"

#include <algorithm>

#include "audio/cues.h"
#include "resolution/smoke.h"
#include "resolution/tags.h"
#include "world/chance.h"
#include "world/mapspeech.h"
#include "world/narration.h"
#include "world/whostands.h"

namespace duskmarch {

namespace {

// The straight line, squared: it orders places as the line itself does, without rounding.
int squaredline(const Mob& one, const Mob& other) {
  const int columns = one.mobx - other.mobx;
  const int rows = one.moby - other.moby;
  return columns * columns + rows * rows;
}

bool hastargethere(const Game& game, const Mob& enemy) {
  return enemy.target != 0 && sametile(enemy, game.mob(enemy.target));
}

void steptowards(Game& game, Mob& enemy, const Mob& target) {
  const bool othercolumn = enemy.mobx != target.mobx;
  const bool otherrow = enemy.moby != target.moby;
  if (othercolumn) enemy.startx = enemy.mobx;
  if (otherrow) enemy.starty = enemy.moby;
  if (othercolumn && (!otherrow || draw(game, 2) == 0)) {
    enemy.mobx += enemy.mobx < target.mobx ? 1 : -1;
  } else {
    enemy.moby += enemy.moby < target.moby ? 1 : -1;
  }
}

std::string walk(Game& game, Mob& enemy) {
  if (!enemy.status.empty() || insmoke(game, enemy)) return {};
  if (enemy.target == 0 || hastargethere(game, enemy)) return {};
  Mob& target = game.mob(enemy.target);
  steptowards(game, enemy, target);
  heard(game, cue::step, enemy);
  std::string report = sentence({enemy.mobname, " moves to ", location(enemy.mobx, enemy.moby)});
  if (sametile(enemy, target) && enemy.mobtype != mobtype::gifted) {
    target.engaged = 1;
    enemy.action = tag::fight;
    heard(game, cue::targetchosen, target);
    report += sentence({" and engages ", target.mobname, " in a fight.  "});
  } else {
    report += ".  ";
  }
  if (insmoke(game, enemy)) report += "The thick smoke makes it hard to see.  ";
  return report;
}

std::string plan(Game& game, int x) {
  listenemyoptions(game, x);
  const int chosen = draw(game, static_cast<int>(game.list3.size()));
  Mob& enemy = game.mob(x);
  enemy.action = game.list3[static_cast<std::size_t>(chosen)];
  if (enemy.action.empty()) return {};
  return sentence({enemy.mobname, " is planning to ", enemy.action, " next turn.  "});
}

}  // namespace

void pickatarget(Game& game, int e) {
  Mob& enemy = game.mob(e);
  int best = 0;
  int bestdistance = 999 * 999;
  for (const Mob& hero : standing(game, aliance::heroes)) {
    const int away = squaredline(hero, enemy);
    // Every hero costs a coin, also where it decides nothing.
    const bool takesover = draw(game, 2) == 1;
    if (away < bestdistance || (away == bestdistance && takesover)) best = slotof(game, hero);
    bestdistance = std::min(bestdistance, away);
  }
  enemy.target = best;
}

void listenemyoptions(Game& game, int t) {
  game.list3.clear();
  listentries(game, t);
  // Choosing nothing is as likely as any two entries.
  game.list3.resize(game.list3.size() + 2);
  if (hastargethere(game, game.mob(t))) game.list3.emplace_back(tag::fight);
}

std::string walkandplan(Game& game, int x) {
  Mob& enemy = game.mob(x);
  if (enemy.target == 0) pickatarget(game, x);
  std::string report;
  if (enemy.mobtype == mobtype::ordinary || enemy.mobtype == mobtype::gifted) {
    report = walk(game, enemy);
  }
  if (enemy.mobtype == mobtype::gifted && enemy.action.empty()) report += plan(game, x);
  if (enemy.action.empty() && hastargethere(game, enemy)) enemy.action = tag::fight;
  return report;
}

}  // namespace duskmarch
