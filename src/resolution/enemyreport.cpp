#include "resolution/enemyreport.h"

#include <string>
#include <vector>

#include "resolution/gunfire.h"
#include "resolution/tags.h"
#include "shell/speech/speech.h"
#include "values/namelist.h"
#include "world/mapspeech.h"
#include "world/narration.h"
#include "world/personwords.h"
#include "world/tables.h"

namespace duskmarch {

namespace {

constexpr std::string_view nobody = "No enemies here.";

bool onthecursor(const Game& game, int slot) {
  const Mob& mob = game.mob(slot);
  return conscious(mob) && mob.aliance == aliance::enemies && at(mob, {game.cursorx, game.cursory});
}

// Moves `reportedmob` on to the next enemy on the cursor's tile, round to itself in the end.
bool findnextenemy(Game& game) {
  for (int n = 1; n <= game.mobcount; ++n) {
    const int from = std::min(game.reportedmob, game.mobcount);
    const int slot = (from + n - 1) % game.mobcount + 1;
    if (!onthecursor(game, slot)) continue;
    game.reportedmob = slot;
    return true;
  }
  return false;
}

std::string states(const Mob& enemy) {
  std::vector<std::string> names;
  if (hastag(enemy.status, tag::dazed)) names.emplace_back("dazed");
  if (hastag(enemy.status, tag::netted)) names.emplace_back("netted");
  if (hastag(enemy.status, tag::pinned)) names.emplace_back("pinned");
  return joinnames(names, ", ");
}

std::string plans(const Mob& enemy) {
  const std::string_view he = heorshe(enemy.gender);
  const std::string_view his = hisorher(enemy.gender);
  std::string text;
  if (hastag(enemy.action, tag::fight)) {
    text += sentence({he, " will fight when you end your turn.  "});
  }
  if (hastag(enemy.action, tag::reload)) {
    text += sentence({he, " will reload ", his, " gun when you end your turn.  "});
  }
  if (hastag(enemy.action, tag::loaded)) {
    text +=
        sentence({he, " will finish reloading and aim ", his, " gun when you end your turn.  "});
  }
  if (hastag(enemy.action, tag::shootopening)) {
    const auto [column, row] = shootingtarget(enemy.action);
    text += sentence({he, " will fire ", his, " gun at location ", saycoords(column), " ",
                      std::to_string(row), " when you end your turn.  "});
  }
  return text;
}

}  // namespace

void mobcheck(Game& game) {
  if (!findnextenemy(game)) return sayit(game, nobody);
  const Mob& enemy = game.mob(game.reportedmob);
  const std::string state = states(enemy);
  sayit(game, sentence({enemy.mobname, state.empty() ? "" : " is ", state,
                        state.empty() ? " has " : " with ", std::to_string(enemy.health),
                        " health, fighting skill ", std::to_string(enemy.fight),
                        skillbonus(game, game.reportedmob), ". ", plans(enemy)}));
}

void describeenemy(Game& game) {
  if (!findnextenemy(game)) return sayit(game, nobody);
  const Mob& enemy = game.mob(game.reportedmob);
  std::string text = enemy.mobname;
  if (hastag(enemy.status, tag::pinned)) text += " is pinned";
  if (hastag(enemy.status, tag::dazed)) text += " is dazed";
  if (hastag(enemy.status, tag::netted)) text += " is netted";
  text += sentence({", health ", std::to_string(enemy.health), ", fighting skill ",
                    std::to_string(enemy.fight), ".  "});
  if (!enemy.action.empty()) {
    text += sentence({"  ", heorshe(enemy.gender), " plans to ", enemy.action, " next turn.  "});
  }
  sayit(game, text);
}

}  // namespace duskmarch
