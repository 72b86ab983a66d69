// What thrown furniture does to whom it hits, and to itself.
#pragma once

#include <string>

#include "game.h"
#include "world/directions.h"

namespace duskmarch {

inline constexpr int tabledamage = 6;
inline constexpr int chairdamage = 4;

// It comes down on a tile, the worse for it.
inline void crash(Item& item, Tile tile) {
  item.itemx = tile.x;
  item.itemy = tile.y;
  item.itemhealth -= 1;
}

// How a chair's flight is told, and what it did to whom it hit.
std::string chairthrown(const Mob& thrower, const Direction& direction);
std::string chairhit(const Mob& victim);

}  // namespace duskmarch
