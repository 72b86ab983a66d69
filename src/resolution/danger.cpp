#include "resolution/danger.h"

#include <algorithm>
#include <vector>

#include "resolution/gunfire.h"
#include "resolution/planentry.h"
#include "resolution/tags.h"
#include "values/namelist.h"
#include "world/mapspeech.h"
#include "world/narration.h"
#include "world/whostands.h"

namespace duskmarch {

namespace {

using Names = std::vector<std::string>;

Names heroeson(const Game& game, Tile tile) {
  Names names;
  for (const Mob& hero : standingon(game, tile, aliance::heroes)) names.push_back(hero.mobname);
  return names;
}

class Dangers {
 public:
  explicit Dangers(const Game& game) : game_(game) {}

  void adddeed(const Mob& enemy) {
    if (!enemy.status.empty() || enemy.mobtype != mobtype::gifted) return;
    const auto [option, direction] = readentry(enemy.action);
    if (direction == nullptr) return;
    if (option == plannedoption::kick) {
      return tell(step(tileof(enemy), *direction), "kick of " + enemy.mobname);
    }
    if (option == plannedoption::throwchair) return addchair(enemy, *direction);
    if (option == plannedoption::throwtable) return addtable(enemy, *direction);
    addperson(enemy, option, *direction);
  }

  void addshot(const Mob& enemy) {
    if (enemy.status.empty() && hastag(enemy.action, tag::shootopening)) addgun(enemy);
  }

  std::string words() const {
    const std::string dangers = tosomebody_ + tonobody_;
    const std::string all =
        (dangers.empty() ? std::string("No danger that you know of, fights apart.  ") : dangers) +
        stopped_;
    return all.substr(0, all.find_last_not_of(' ') + 1);
  }

 private:
  void tell(const std::string& where, std::string_view what, const Names& heroes) {
    std::string& part = heroes.empty() ? tonobody_ : tosomebody_;
    part += sentence({"Danger ", where, ", ", what, ": ",
                      heroes.empty() ? "nobody" : joinnames(heroes, ""), ".  "});
  }
  void tell(Tile tile, std::string_view what) {
    if (onthemap(game_, tile)) tell("at " + placename(tile), what, heroeson(game_, tile));
  }
  void tellstopped(std::string_view bywhat, const Mob& gunman) {
    stopped_ += sentence({bywhat, " the gun of ", gunman.mobname, ".  "});
  }

  // A chair knocks all plans out of whom it hits, a raised shield among them.
  bool keepsshield(const Mob& hero) const {
    return hastag(hero.action, tag::shield) &&
           std::ranges::find(hitbychairs_, &hero) == hitbychairs_.end();
  }

  void addgun(const Mob& gunman) {
    const auto [x, y] = shootingtarget(gunman.action);
    const std::string& tags = tiletags(game_, x, y);
    const std::string where = placename({x, y});
    if (hastag(tags, tag::smoke)) return tellstopped("The smoke at " + where + " stops", gunman);
    if (hastag(tags, tag::table)) {
      return tellstopped("The overturned table at " + where + " stops", gunman);
    }
    Names hit;
    Names safe;
    for (const Mob& hero : standingon(game_, {x, y}, aliance::heroes)) {
      (keepsshield(hero) ? safe : hit).push_back(hero.mobname);
    }
    if (!hit.empty() || safe.empty()) tell("at " + where, "gun of " + gunman.mobname, hit);
    if (safe.empty()) return;
    tellstopped((safe.size() == 1 ? "The shield of " : "The shields of ") +
                    joinnames(safe, " stops", " stop"),
                gunman);
  }

  bool has(const Mob& thrower, std::string_view furniture) const {
    return finditem(game_, thrower.mobx, thrower.moby, furniture) != 0;
  }
  void addtable(const Mob& thrower, const Direction& direction) {
    if (!has(thrower, "Table")) return;
    tell(step(tileof(thrower), direction), "table of " + thrower.mobname);
  }
  // It flies on until it hits a hero; where there is none, the whole line is no place to go to.
  void addchair(const Mob& thrower, const Direction& direction) {
    if (!has(thrower, "Chair")) return;
    const std::string what = "chair of " + thrower.mobname;
    if (const Mob* hero = firstinline(game_, tileof(thrower), direction, aliance::heroes)) {
      hitbychairs_.push_back(hero);
      return tell("at " + placename(tileof(*hero)), what, {hero->mobname});
    }
    tell(sentence(
             {"all the way ", insmallletters(direction.word), " of ", placename(tileof(thrower))}),
         what, {});
  }
  // Who is thrown is dazed, and so is who is there where he lands.
  void addperson(const Mob& thrower, std::string_view option, const Direction& direction) {
    const int thrown = thrownby(game_, thrower, option);
    if (thrown == 0) return;
    const std::string& name = game_.mob(thrown).mobname;
    tell("at " + placename(tileof(thrower)), "throw of " + thrower.mobname, {name});
    tell(step(tileof(thrower), direction), sentence({name, " thrown by ", thrower.mobname}));
  }

  const Game& game_;
  std::vector<const Mob*> hitbychairs_;
  std::string tosomebody_;
  std::string tonobody_;
  std::string stopped_;
};

}  // namespace

std::string dangerwords(const Game& game) {
  Dangers dangers(game);
  // In the order in which they are carried out.
  for (const Mob& enemy : standing(game, aliance::enemies)) dangers.adddeed(enemy);
  for (const Mob& enemy : standing(game, aliance::enemies)) dangers.addshot(enemy);
  return dangers.words();
}

}  // namespace duskmarch
