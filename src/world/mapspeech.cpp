#include "world/mapspeech.h"

#include <vector>

#include "resolution/tags.h"
#include "shell/speech/speech.h"
#include "values/namelist.h"
#include "world/narration.h"
#include "world/whostands.h"

namespace duskmarch {

namespace {

// The one condition that is told of a mob in a crowd.
std::string_view stateword(const Mob& mob) {
  if (hastag(mob.status, tag::dazed)) return "dazed ";
  if (hastag(mob.status, tag::netted)) return "netted ";
  if (hastag(mob.status, tag::pinned)) return "pinned ";
  return "";
}

std::vector<std::string> mobson(const Game& game, Tile tile, int side) {
  std::vector<std::string> names;
  for (const Mob& mob : standingon(game, tile, side)) {
    names.push_back(sentence({stateword(mob), mob.mobname}));
  }
  return names;
}

std::vector<std::string> itemson(const Game& game, Tile tile) {
  std::vector<std::string> names;
  for (const Item& item : furnitureon(game, tile)) names.push_back(item.itemname);
  return names;
}

std::string rollcallentry(std::string_view name, int x, int y) {
  return sentence({name, " at ", location(x, y), ".  "});
}

void rollcall(Game& game, int side, std::string_view nobody) {
  std::string text;
  for (const Mob& mob : standing(game, side)) {
    text += rollcallentry(mob.mobname, mob.mobx, mob.moby);
  }
  sayit(game, text.empty() ? nobody : text);
}

}  // namespace

std::string saycoords(int column) {
  if (column < 1 || column > 26) return "";
  return {static_cast<char>('A' + column - 1)};
}

std::string location(int x, int y) {
  return saycoords(x) + ", " + std::to_string(y);
}

std::string placename(Tile tile) {
  return saycoords(tile.x) + " " + std::to_string(tile.y);
}

void saytile(Game& game, int x, int y) {
  const std::string& tags = tiletags(game, x, y);
  std::string text = hastag(tags, tag::smoke) ? "Smokey " : "";
  text += placename({x, y}) + ", ";

  const auto heroes = mobson(game, {x, y}, aliance::heroes);
  const auto enemies = mobson(game, {x, y}, aliance::enemies);
  if (const std::size_t count = heroes.size() + enemies.size(); count > 0) {
    text += std::to_string(count) + " here.  ";
    text += joinnames(heroes, ".  ") + joinnames(enemies, ".  ");
  }
  if (hastag(tags, tag::table)) text += "There is an overturned table here providing cover.  ";
  if (const auto items = itemson(game, {x, y}); !items.empty()) {
    text += "There is a " + joinnames(items, " ") + "here.";
  }
  sayit(game, text);
}

cue::Id toneof(const Game& game, int x, int y) {
  const bool heroes = !standingon(game, {x, y}, aliance::heroes).empty();
  const bool enemies = !standingon(game, {x, y}, aliance::enemies).empty();
  if (heroes) return enemies ? cue::tileboth : cue::tilehero;
  if (enemies) return cue::tileenemy;
  const std::string& tags = tiletags(game, x, y);
  if (hastag(tags, tag::smoke)) return cue::tilesmoke;
  const bool cover = hastag(tags, tag::table) || !furnitureon(game, {x, y}).empty();
  return cover ? cue::tilefurniture : cue::tileempty;
}

void rollcallofheroes(Game& game) {
  rollcall(game, aliance::heroes, "No heroes found");
}

void rollcallofenemies(Game& game) {
  rollcall(game, aliance::enemies, "No enemies found");
}

void rollcalloffurniture(Game& game) {
  std::string text;
  for (const Item& item : furniture(game)) {
    text += rollcallentry(item.itemname, item.itemx, item.itemy);
  }
  sayit(game, text.empty() ? "No furnature found" : text);
}

Hundredths calcfight2(const Game& game, int z) {
  const Mob& mob = game.mob(z);
  const Hundredths crowd = menhere(game, 1, mob.mobx, mob.moby, mob.aliance, "fight");
  return effectivefight(mob, crowd) - Hundredths::whole(mob.fight);
}

}  // namespace duskmarch
