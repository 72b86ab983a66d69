// What gifted enemies make of the orders that their abilities allow: the entries among which one
// draws its plan, and what each entry does at the next end of turn.
#include <algorithm>
#include <array>
#include <string>
#include <vector>

#include "audio/cues.h"
#include "heroturn/messagelog.h"
#include "heroturn/offers.h"
#include "resolution/enemies.h"
#include "resolution/planentry.h"
#include "resolution/tags.h"
#include "values/namelist.h"
#include "world/furniture.h"
#include "world/narration.h"
#include "world/whostands.h"

namespace duskmarch {

namespace {

constexpr int dazeturns = 2;  // of a hero who is kicked, thrown or hit

void daze(Mob& hero) {
  addtag(hero.status, tag::dazed, dazeturns);
}

void dazehurt(Game& game, Mob& hero, int damage) {
  daze(hero);
  hero.health -= damage;
  hearddazingblow(game, hero, damage);
}

void throwhero(const Deed& deed) {
  const auto& [game, thrower, thrown, item, direction] = deed;
  const Tile landing = step(tileof(thrower), direction);
  heard(game, cue::personthrown, thrower);
  heard(game, cue::personlanded, landing.x, landing.y);
  std::vector<std::string> knockedover;
  for (Mob& hero : standingon(game, landing, aliance::heroes)) {
    daze(hero);
    heard(game, cue::dazed, hero);
    knockedover.push_back(hero.mobname);
  }
  removeeverytag(thrown.status, tag::pinned);
  daze(thrown);
  place(thrown, keptonthemap(game, landing));
  heard(game, cue::dazed, thrown);
  const std::string crashed =
      sentence({" was knocked over as ", thrown.mobname, " came crashing down.  "});
  list1additem(game, sentence({thrower.mobname, " picks up ", thrown.mobname, " and throws ",
                               himorher(thrown.gender), " ", direction.word, ".  ",
                               joinnames(knockedover, crashed)}));
}

void throwtable(const Deed& deed) {
  const auto& [game, thrower, nobody, table, direction] = deed;
  const Tile landing = step(tileof(thrower), direction);
  heard(game, cue::tablethrown, thrower);
  heard(game, cue::tablelanded, landing.x, landing.y);
  std::vector<std::string> knockedover;
  std::vector<std::string> knockedout;
  for (Mob& hero : standingon(game, landing, aliance::heroes)) {
    dazehurt(game, hero, tabledamage);
    knockedover.push_back(hero.mobname);
    if (!conscious(hero)) knockedout.push_back(hero.mobname);
  }
  crash(table, keptonthemap(game, landing));
  list1additem(
      game,
      sentence(
          {thrower.mobname, " picks up a table and throws it ", direction.word, ".  ",
           joinnames(knockedover, " was knocked over as the table came crashing down.  "),
           joinnames(knockedout, " was knocked unconscious.  ", " were knocked unconscious.  "),
           onthemap(table) ? "" : "The table has splintered into scraps of wood.  "}));
}

void kick(const Deed& deed) {
  const auto& [game, kicker, nobody, item, direction] = deed;
  const Tile attacked = step(tileof(kicker), direction);
  Mob* kicked = nullptr;
  for (Mob& hero : standingon(game, attacked, aliance::heroes)) kicked = &hero;
  place(kicker, keptonthemap(game, attacked));
  heard(game, cue::kick, kicker);
  const std::string kicks =
      sentence({kicker.mobname, " jump kicked to the ", direction.word, ", "});
  if (kicked == nullptr) {
    heard(game, cue::blowblocked, kicker);
    return list1additem(game,
                        sentence({kicks, "but missed ", hisorher(kicker.gender), " target.  "}));
  }
  Mob& hero = *kicked;
  place(hero, keptonthemap(game, step(attacked, direction)));
  dazehurt(game, hero, kicker.fight);
  list1additem(
      game, sentence({kicks, "knocking ", hero.mobname, " back and dazing ", himorher(hero.gender),
                      ".  ", hero.mobname, " suffered ", std::to_string(kicker.fight),
                      conscious(hero) ? " damage.  " : " damage and was knocked unconscious.  "}));
}

void throwchair(const Deed& deed) {
  const auto& [game, thrower, nobody, chair, direction] = deed;
  heard(game, cue::chairthrown, thrower);
  std::string report = chairthrown(thrower, direction);
  if (Mob* const victim = firstinline(game, tileof(thrower), direction, aliance::heroes)) {
    Mob& hero = *victim;
    heard(game, cue::chairlanded, hero);
    dazehurt(game, hero, chairdamage);
    hero.action.clear();
    crash(chair, tileof(hero));
    report += chairhit(hero);
  }
  list1additem(game, report);
}

// The entries of an order, by the direction it would act in.

void list3additem(Game& game, std::string_view option, const Direction& direction) {
  game.list3.push_back(sentence({"[", option, " ", direction.word, "]"}));
}

// Each kick may go wherever heroes stand.
void listkicks(Game& game, const Mob& enemy, const Offer& offer) {
  for (const Direction& direction : directions) {
    const Tile tile = step(tileof(enemy), direction);
    if (standingon(game, tile, aliance::heroes).empty()) continue;
    list3additem(game, offer.order->name, direction);
  }
}

// The throws that hit a hero up to `reach` tiles away.
void listthrows(Game& game, const Mob& enemy, std::string_view option, int reach) {
  for (const Mob& hero : standing(game, aliance::heroes)) {
    for (const Direction& direction : directions) {
      const int tiles = tilesahead(tileof(enemy), tileof(hero), direction);
      if (tiles >= 1 && tiles <= reach) list3additem(game, option, direction);
    }
  }
}

void listchairthrows(Game& game, const Mob& enemy, const Offer& offer) {
  listthrows(game, enemy, offer.order->name, gridsize);
}

void listtablethrows(Game& game, const Mob& enemy, const Offer& offer) {
  listthrows(game, enemy, offer.order->name, 1);
}

// A person may be thrown anywhere but against the edge of the map, and once more at whom it hits.
void listpersonthrows(Game& game, const Mob& enemy, const Offer& offer) {
  const std::string option = offertext(game, offer);
  for (const Direction& direction : directions) {
    if (tilestotheedge(game, tileof(enemy), direction) > 0) list3additem(game, option, direction);
  }
  listthrows(game, enemy, option, 1);
}

// The orders that enemies make something of.
struct EnemyOrder {
  std::string_view order;  // its name in the table of orders
  void (*listentries)(Game& game, const Mob& enemy, const Offer& offer);
  void (*perform)(const Deed& deed);  // by then the row of its name is paid
};
constexpr std::array enemyorders{
    EnemyOrder{plannedoption::kick, listkicks, kick},
    EnemyOrder{plannedoption::throwchair, listchairthrows, throwchair},
    EnemyOrder{plannedoption::throwtable, listtablethrows, throwtable},
    EnemyOrder{plannedoption::throwperson, listpersonthrows, throwhero},
};
static_assert(std::ranges::all_of(enemyorders, [](const EnemyOrder& row) {
  return std::ranges::count(orders, row.order, &Order::name) == 1 &&
         !findorder(row.order)->ability.empty();
}));

// Nothing happens, and nothing is spent, when whom or what it takes is gone.
void perform(Game& game, int t, const PlanEntry& entry) {
  Mob& enemy = game.mob(t);
  const int thrown = thrownby(game, enemy, entry.option);
  const auto* const row = std::ranges::find(
      enemyorders, thrown == 0 ? entry.option : plannedoption::throwperson, &EnemyOrder::order);
  if (row == enemyorders.end() || (row->order == plannedoption::throwperson && thrown == 0)) return;
  const Order& order = *findorder(row->order);
  const int piece =
      order.furniture.empty() ? 0 : finditem(game, enemy.mobx, enemy.moby, order.furniture);
  if (!order.furniture.empty() && piece == 0) return;
  useup(game, t, order.ability, 1);
  row->perform({game, enemy, game.mob(thrown), game.item(piece), *entry.direction});
}

}  // namespace

void listentries(Game& game, int t) {
  const Mob& enemy = game.mob(t);
  for (const Offer& offer : offersofabilities(game, t)) {
    const auto* const row = std::ranges::find(enemyorders, offer.order->name, &EnemyOrder::order);
    if (row != enemyorders.end()) row->listentries(game, enemy, offer);
  }
}

void doenemyoption(Game& game, int t, const std::string& entry) {
  if (const PlanEntry asked = readentry(entry); asked.direction != nullptr) perform(game, t, asked);
  // Not before: the entry may be this very action.
  game.mob(t).action.clear();
}

}  // namespace duskmarch
