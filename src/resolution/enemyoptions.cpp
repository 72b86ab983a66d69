// What a gifted enemy can do with the option that it chose.
#include <string>
#include <vector>

#include "heroturn/messagelog.h"
#include "resolution/enemies.h"
#include "resolution/tags.h"
#include "values/namelist.h"
#include "world/directions.h"
#include "world/furniture.h"
#include "world/narration.h"
#include "world/tables.h"

namespace duskmarch {

namespace {

constexpr std::string_view throwopening = "Throw ";

// What an entry such as "[Throw chair North]" asks for; without a direction, nothing.
struct Chosen {
  std::string_view option;
  const Direction* direction = nullptr;
};

Chosen readentry(std::string_view entry) {
  const auto space = entry.rfind(' ');
  if (space == std::string_view::npos || !entry.starts_with('[') || !entry.ends_with(']')) {
    return {};
  }
  return {.option = entry.substr(1, space - 1),
          .direction = finddirection(entry.substr(space + 1, entry.size() - space - 2))};
}

// The conscious heroes on a tile, in slot order.
std::vector<int> heroesat(const Game& game, Tile tile) {
  std::vector<int> heroes;
  for (int slot = 1; slot <= game.mobcount; ++slot) {
    const Mob& mob = game.mob(slot);
    if (conscious(mob) && mob.aliance == aliance::heroes && at(mob, tile.x, tile.y)) {
      heroes.push_back(slot);
    }
  }
  return heroes;
}

void daze(Mob& hero) {
  addtag(hero.status, tag::dazed, 2);
}

// The hero on the thrower's own tile that `option` names; 0 for none.
int herotothrow(const Game& game, const Mob& thrower, std::string_view option) {
  if (!option.starts_with(throwopening)) return 0;
  int named = 0;
  for (const int hero : heroesat(game, tileof(thrower))) {
    if (game.mob(hero).mobname == option.substr(throwopening.size())) named = hero;
  }
  return named;
}

void throwhero(Game& game, int t, int hero, const Direction& direction) {
  const Mob& thrower = game.mob(t);
  Mob& thrown = game.mob(hero);
  const Tile landing = step(tileof(thrower), direction);
  useup(game, t, "Throw", 1);
  std::vector<std::string> knockedover;
  for (const int slot : heroesat(game, landing)) {
    daze(game.mob(slot));
    knockedover.push_back(game.mob(slot).mobname);
  }
  removeeverytag(thrown.status, tag::pinned);
  daze(thrown);
  place(thrown, keptonthemap(game, landing));
  const std::string crashed =
      sentence({" was knocked over as ", thrown.mobname, " came crashing down.  "});
  list1additem(game, sentence({thrower.mobname, " picks up ", thrown.mobname, " and throws ",
                               himorher(thrown.gender), " ", direction.word, ".  ",
                               joinnames(knockedover, crashed)}));
}

void throwtable(Game& game, int t, const Direction& direction) {
  const Mob& thrower = game.mob(t);
  const int slot = finditem(game, thrower.mobx, thrower.moby, "Table");
  if (slot == 0) return;
  Item& table = game.item(slot);
  const Tile landing = step(tileof(thrower), direction);
  useup(game, t, "Throw", 1);
  std::vector<std::string> knockedover;
  std::vector<std::string> knockedout;
  for (const int victim : heroesat(game, landing)) {
    Mob& hero = game.mob(victim);
    daze(hero);
    hero.health -= tabledamage;
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

void kick(Game& game, int t, const Direction& direction) {
  Mob& kicker = game.mob(t);
  const Tile attacked = step(tileof(kicker), direction);
  const std::vector<int> heroes = heroesat(game, attacked);
  useup(game, t, "Kick", 1);
  place(kicker, keptonthemap(game, attacked));
  const std::string kicks =
      sentence({kicker.mobname, " jump kicked to the ", direction.word, ", "});
  if (heroes.empty()) {
    return list1additem(game,
                        sentence({kicks, "but missed ", hisorher(kicker.gender), " target.  "}));
  }
  Mob& hero = game.mob(heroes.back());
  place(hero, keptonthemap(game, step(attacked, direction)));
  daze(hero);
  hero.health -= kicker.fight;
  list1additem(
      game, sentence({kicks, "knocking ", hero.mobname, " back and dazing ", himorher(hero.gender),
                      ".  ", hero.mobname, " suffered ", std::to_string(kicker.fight),
                      conscious(hero) ? " damage.  " : " damage and was knocked unconscious.  "}));
}

// The first hero in line from a mob to the edge of the map; 0 for none.
int firstheroinline(const Game& game, const Mob& mob, const Direction& direction) {
  const int tiles = tilestotheedge(game, tileof(mob), direction);
  for (int away = 1; away <= tiles; ++away) {
    const std::vector<int> heroes = heroesat(game, step(tileof(mob), direction, away));
    if (!heroes.empty()) return heroes.front();
  }
  return 0;
}

void throwchair(Game& game, int t, const Direction& direction) {
  const Mob& thrower = game.mob(t);
  const int slot = finditem(game, thrower.mobx, thrower.moby, "Chair");
  if (slot == 0) return;
  useup(game, t, "Throw", 1);
  std::string report =
      sentence({thrower.mobname, " grabs a chair and hurls it ", direction.word, ".  "});
  if (const int victim = firstheroinline(game, thrower, direction); victim != 0) {
    Mob& hero = game.mob(victim);
    hero.health -= chairdamage;
    daze(hero);
    hero.action.clear();
    crash(game.item(slot), tileof(hero));
    report += sentence(
        {hero.mobname, " was hit by it and suffered ", std::to_string(chairdamage), " damage.  "});
    if (!conscious(hero)) report += hero.mobname + " was knocked unconscious by the impact.  ";
  }
  list1additem(game, report);
}

}  // namespace

void doenemyoption(Game& game, int t, const std::string& entry) {
  if (const auto [option, direction] = readentry(entry); direction != nullptr) {
    if (const int hero = herotothrow(game, game.mob(t), option); hero != 0) {
      throwhero(game, t, hero, *direction);
    } else if (option == "Throw table") {
      throwtable(game, t, *direction);
    } else if (option == "Throw chair") {
      throwchair(game, t, *direction);
    } else if (option == "Kick") {
      kick(game, t, *direction);
    }
  }
  // Not before: the entry may be this very action.
  game.mob(t).action.clear();
}

}  // namespace duskmarch
