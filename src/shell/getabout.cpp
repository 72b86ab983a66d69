#include "shell/getabout.h"

#include <algorithm>
#include <string>
#include <vector>

#include "audio/cues.h"
#include "heroturn/dooption.h"
#include "heroturn/offers.h"
#include "resolution/tags.h"
#include "shell/speech/speech.h"
#include "world/drawnmap.h"
#include "world/mapspeech.h"
#include "world/nexthero.h"
#include "world/whostands.h"

namespace duskmarch {

namespace {

void putcursor(Game& game, Tile tile) {
  game.cursorx = tile.x;
  game.cursory = tile.y;
  playcue(game, toneof(game, tile.x, tile.y), tile.x, tile.y);
  saytile(game, tile.x, tile.y);
  drawscreen(game);
}

// The first enemy of each tile that has any, in slot order.
std::vector<int> firstenemies(const Game& game) {
  std::vector<int> slots;
  for (const Mob& enemy : standing(game, aliance::enemies)) {
    const auto sharestile = [&](int slot) { return sametile(game.mob(slot), enemy); };
    if (std::ranges::none_of(slots, sharestile)) slots.push_back(slotof(game, enemy));
  }
  return slots;
}

// Null where the tile is not one step away.
const Direction* directionto(Tile from, Tile to) {
  const auto* const found = std::ranges::find_if(
      directions, [&](const Direction& direction) { return tilesahead(from, to, direction) == 1; });
  return found == directions.end() ? nullptr : found;
}

bool ishero(const Mob& mob) {
  return mob.aliance == aliance::heroes && conscious(mob);
}

// What the order "Move" is listed as, if the hero may give it now.
std::string moveoffered(const Game& game) {
  constexpr const Order* moving = findorder("Move");
  for (const Offer& offer : offers(game, game.selected)) {
    if (offer.order == moving) return offertext(game, offer);
  }
  return {};
}

// Why the selected hero cannot move; empty when it can.
std::string whyheldback(const Game& game) {
  const Mob& hero = game.mob(game.selected);
  if (nexthero(game) == 0 && !ishero(hero)) return "Nobody is standing.";
  if (!ishero(hero)) return "Press N to select a hero first.";
  if (hastag(hero.status, tag::dazed)) return hero.mobname + " is dazed.";
  if (hero.engaged != 0) return hero.mobname + " is held in a fight.";
  if (hero.hasmoved != 0) return hero.mobname + " has moved already.";
  return {};
}

}  // namespace

void gotoenemies(Game& game, bool backwards) {
  if (!game.missionunderway) return sayit(game, nomission);
  std::vector<int> slots = firstenemies(game);
  if (backwards) std::ranges::reverse(slots);
  const auto own = std::ranges::find_if(slots, [&](int slot) {
    return at(game.mob(slot), {game.cursorx, game.cursory});
  });
  const auto next = own == slots.end() || own + 1 == slots.end() ? slots.begin() : own + 1;
  if (slots.empty()) return sayit(game, "No enemies found");
  if (next == own) return sayit(game, "No enemies found elsewhere");
  putcursor(game, tileof(game.mob(*next)));
}

void gotohero(Game& game) {
  if (!game.missionunderway) return sayit(game, nomission);
  const Mob& hero = game.mob(game.selected);
  if (!ishero(hero)) return sayit(game, nobodychosen);
  putcursor(game, tileof(hero));
}

void movetocursor(Game& game) {
  if (!game.missionunderway) return sayit(game, nomission);
  if (const std::string reason = whyheldback(game); !reason.empty()) return sayit(game, reason);
  const Mob& hero = game.mob(game.selected);
  const Tile here = {game.cursorx, game.cursory};
  if (at(hero, here)) return sayit(game, hero.mobname + " is here already.");
  const Direction* const direction = directionto(tileof(hero), here);
  if (direction == nullptr) return sayit(game, "Too far for " + hero.mobname + ".");
  if (const std::string order = moveoffered(game); !order.empty()) {
    dooption(game, order, *direction);
  }
}

}  // namespace duskmarch
