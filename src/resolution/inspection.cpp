#include "resolution/inspection.h"

#include <algorithm>
#include <string_view>

#include "resolution/melee.h"
#include "resolution/planwords.h"
#include "resolution/tags.h"
#include "world/mapspeech.h"
#include "world/narration.h"
#include "world/personwords.h"
#include "world/whostands.h"

namespace duskmarch {

namespace {

std::string trimmed(std::string text) {
  text.erase(text.find_last_not_of(' ') + 1);
  return text;
}

std::string conditionsentences(const Mob& hero) {
  std::string text;
  std::string words = conditionwords(hero, "", "\n");
  while (!words.empty()) {
    const auto end = words.find('\n');
    text += capitalized(words.substr(0, end)) + ".  ";
    words.erase(0, end + 1);
  }
  return text;
}

std::string fightsentences(const Game& game, const Mob& hero) {
  std::string text;
  if (hero.engaged == 1) text += "Held in a fight.  ";
  if (hastag(hero.action, tag::fight) && canfight(game, hero)) {
    text += sentence({"Fighting ", game.mob(hero.target).mobname, ".  "});
  }
  if (hastag(hero.action, tag::shield)) text += "Shield up.  ";
  return text;
}

// Nothing of it for who is dazed, and takes no orders.
std::string turnsentences(const Mob& hero) {
  if (hastag(hero.status, tag::dazed)) return {};
  std::string text;
  if (hero.hasmoved != 0) {
    text += "Has moved.  ";
  } else if (hero.engaged == 0) {
    text += "Can move.  ";
  }
  return text + (hero.hasacted != 0 ? "Has acted.  " : "Can act.  ");
}

std::string personsentence(const Game& game, const Mob& mob) {
  const std::string plan = planwords(game, mob);
  return sentence({mob.mobname, ", ", bodywords(game, slotof(game, mob)),
                   conditionwords(mob, ", ", ""), plan.empty() ? "" : ", ", plan, ".  "});
}

std::string smokesentence(const std::string& tags) {
  std::string left = tags;
  int turns = 0;
  for (; hastag(left, tag::smoke); ++turns) removetag(left, tag::smoke);
  return turns == 0 ? std::string() : sentence({"Smoke for ", counted(turns, "more turn"), ".  "});
}

}  // namespace

std::string herowords(const Game& game, int slot) {
  const Mob& hero = game.mob(slot);
  const std::string where = sentence({hero.mobname, " at ", placename(tileof(hero)), ".  "});
  if (!conscious(hero)) return where + "Unconscious.";
  const std::string abilities = abilitywords(hero);
  return trimmed(sentence({where, bodywords(game, slot), ".  ", conditionsentences(hero),
                           fightsentences(game, hero), turnsentences(hero), abilities,
                           abilities.empty() ? "" : "."}));
}

std::string tilewords(const Game& game, Tile tile) {
  std::string text;
  for (const int side : {aliance::heroes, aliance::enemies}) {
    for (const Mob& mob : standingon(game, tile, side)) text += personsentence(game, mob);
  }
  for (const Item& item : furnitureon(game, tile)) text += item.itemname + ".  ";
  const std::string& tags = tiletags(game, tile.x, tile.y);
  if (hastag(tags, tag::table)) text += "Overturned table.  ";
  text += smokesentence(tags);
  return trimmed(
      sentence({placename(tile), ".  ", text.empty() ? std::string_view("Nothing here.") : text}));
}

}  // namespace duskmarch
