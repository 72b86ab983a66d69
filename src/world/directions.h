// The four directions of the map, and what lies in them.
#pragma once

#include <algorithm>
#include <array>
#include <string_view>

#include "game.h"

namespace duskmarch {

struct Direction {
  std::string_view word;
  int dx = 0;
  int dy = 0;
};

// In the order in which enemies consider them.
inline constexpr std::array<Direction, 4> directions{{
    {"West", -1, 0},
    {"East", 1, 0},
    {"North", 0, -1},
    {"South", 0, 1},
}};

// The direction of that word; null when it is none.
inline const Direction* finddirection(std::string_view word) {
  const auto* found = std::ranges::find(directions, word, &Direction::word);
  return found == directions.end() ? nullptr : found;
}

struct Tile {
  int x = 0;
  int y = 0;
};

inline Tile tileof(const Mob& mob) {
  return {mob.mobx, mob.moby};
}
inline bool at(const Mob& mob, Tile tile) {
  return mob.mobx == tile.x && mob.moby == tile.y;
}
inline bool at(const Item& item, Tile tile) {
  return item.itemx == tile.x && item.itemy == tile.y;
}
inline Tile step(Tile from, const Direction& direction, int tiles = 1) {
  return {from.x + direction.dx * tiles, from.y + direction.dy * tiles};
}
inline bool onthemap(const Game& game, Tile tile) {
  return tile.x >= 1 && tile.x <= game.mapwidth && tile.y >= 1 && tile.y <= game.mapheight;
}
// The tile itself, or the edge tile that a step beyond the map ends on.
inline Tile keptonthemap(const Game& game, Tile tile) {
  return {std::max(1, std::min(tile.x, game.mapwidth)),
          std::max(1, std::min(tile.y, game.mapheight))};
}
// How many tiles of the map lie beyond `from` in a direction; 0 or less at the edge.
inline int tilestotheedge(const Game& game, Tile from, const Direction& direction) {
  if (direction.dx != 0) return direction.dx < 0 ? from.x - 1 : game.mapwidth - from.x;
  return direction.dy < 0 ? from.y - 1 : game.mapheight - from.y;
}

// How many tiles further in a direction `to` lies in the same column or row; 0 when it does not.
inline int tilesahead(Tile from, Tile to, const Direction& direction) {
  const int dx = to.x - from.x;
  const int dy = to.y - from.y;
  const bool sameline = direction.dx != 0 ? dy == 0 : dx == 0;
  return sameline ? std::max(0, dx * direction.dx + dy * direction.dy) : 0;
}

inline void place(Mob& mob, Tile tile) {
  mob.mobx = tile.x;
  mob.moby = tile.y;
}

}  // namespace duskmarch
