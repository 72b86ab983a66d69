#include "resolution/planwords.h"

#include <vector>

#include "resolution/gunfire.h"
#include "resolution/melee.h"
#include "resolution/planentry.h"
#include "resolution/tags.h"
#include "values/namelist.h"
#include "world/mapspeech.h"
#include "world/narration.h"
#include "world/tables.h"

namespace duskmarch {

namespace {

// A leader strikes no blow of its own: its plan only keeps others from walking off.
std::string fightwords(const Game& game, const Mob& mob) {
  if (mob.mobtype == mobtype::gifted) {
    return mob.fight > 0 ? "holds whoever shares the tile" : "holds nobody";
  }
  if (!canfight(game, mob)) return "has nobody here to fight";
  return "will fight " + game.mob(mob.target).mobname;
}

std::string shootwords(const Mob& gunman) {
  const auto [x, y] = shootingtarget(gunman.action);
  return "will shoot at " + placename({x, y});
}

std::string deedwords(std::string_view option) {
  if (option == plannedoption::kick) return "kick";
  if (option == plannedoption::throwchair) return "throw a chair";
  if (option == plannedoption::throwtable) return "throw a table";
  const std::string_view name = nameofthrown(option);
  return name.empty() ? std::string() : sentence({"throw ", name});
}

std::string entrywords(std::string_view entry) {
  const auto [option, direction] = readentry(entry);
  const std::string deed = direction == nullptr ? std::string() : deedwords(option);
  if (deed.empty()) return {};
  return sentence({"plans to ", deed, " to the ", insmallletters(direction->word)});
}

std::vector<std::string> deedsplanned(const Game& game, const Mob& mob) {
  std::vector<std::string> plans;
  if (hastag(mob.action, tag::shootopening)) plans.push_back(shootwords(mob));
  if (hastag(mob.action, tag::loaded)) plans.emplace_back("will aim");
  if (hastag(mob.action, tag::reload)) plans.emplace_back("will load");
  if (hastag(mob.action, tag::fight)) plans.push_back(fightwords(game, mob));
  if (std::string entry = entrywords(mob.action); !entry.empty()) plans.push_back(std::move(entry));
  // Nothing of it happens before all conditions are gone.
  if (!plans.empty() && !mob.status.empty()) plans.front().insert(0, "then ");
  return plans;
}

}  // namespace

std::string planwords(const Game& game, const Mob& mob) {
  std::vector<std::string> plans = deedsplanned(game, mob);
  if (hastag(mob.action, tag::shield)) plans.insert(plans.begin(), "holds up a shield");
  return joinnames(plans, "");
}

}  // namespace duskmarch
