// Who stands where: the people and the furniture that a rule is about, in slot order, to loop over.
//
// A slot is looked at when the loop comes to it and not before, as by a plain loop over the slots:
// whom the loop itself has moved, hurt or woken is met as he is then.
#pragma once

#include <cstddef>
#include <iterator>
#include <span>
#include <string_view>

#include "game.h"
#include "world/directions.h"
#include "world/tables.h"

namespace duskmarch {

// The slots of a span that are wanted.
template <typename Slot, typename Wanted>
class Those {
 public:
  class Iterator {
   public:
    using iterator_category = std::input_iterator_tag;
    using value_type = Slot;
    using difference_type = std::ptrdiff_t;
    using pointer = Slot*;
    using reference = Slot&;
    Iterator(Slot* at, Slot* end, const Wanted& wanted) : at_(at), end_(end), wanted_(&wanted) {
      skip();
    }
    Slot& operator*() const { return *at_; }
    Iterator& operator++() {
      ++at_;
      skip();
      return *this;
    }
    bool operator==(const Iterator& other) const { return at_ == other.at_; }

   private:
    void skip() {
      while (at_ != end_ && !(*wanted_)(*at_)) ++at_;
    }
    Slot* at_;
    Slot* end_;
    const Wanted* wanted_;
  };

  Those(std::span<Slot> slots, Wanted wanted) : slots_(slots), wanted_(wanted) {}
  Iterator begin() const { return {slots_.data(), slots_.data() + slots_.size(), wanted_}; }
  Iterator end() const {
    Slot* const last = slots_.data() + slots_.size();
    return {last, last, wanted_};
  }
  bool empty() const { return begin() == end(); }

 private:
  std::span<Slot> slots_;
  Wanted wanted_;
};

// Everyone in slots 1 to `mobcount`, whatever their state.
inline std::span<Mob> everyone(Game& game) {
  return std::span(game.mobs).subspan(1, static_cast<std::size_t>(game.mobcount));
}
inline std::span<const Mob> everyone(const Game& game) {
  return std::span(game.mobs).subspan(1, static_cast<std::size_t>(game.mobcount));
}
// Every piece of furniture that the mission placed, broken or not.
inline std::span<const Item> allfurniture(const Game& game) {
  return std::span(game.items).subspan(1, static_cast<std::size_t>(game.itemcount));
}

inline int slotof(const Game& game, const Mob& mob) {
  return static_cast<int>(&mob - game.mobs.data());
}
inline int slotof(const Game& game, const Item& item) {
  return static_cast<int>(&item - game.items.data());
}

// In all of these `AnyGame` is Game or const Game.

// Everyone conscious.
template <typename AnyGame>
auto standing(AnyGame& game) {
  return Those(everyone(game), [](const Mob& mob) { return conscious(mob); });
}
// Everyone conscious of a side.
template <typename AnyGame>
auto standing(AnyGame& game, int side) {
  return Those(everyone(game),
               [side](const Mob& mob) { return conscious(mob) && mob.aliance == side; });
}
// Everyone conscious on a tile.
template <typename AnyGame>
auto standingon(AnyGame& game, Tile tile) {
  return Those(everyone(game), [tile](const Mob& mob) { return conscious(mob) && at(mob, tile); });
}
// Everyone conscious of a side on a tile.
template <typename AnyGame>
auto standingon(AnyGame& game, Tile tile, int side) {
  return Those(everyone(game), [tile, side](const Mob& mob) {
    return conscious(mob) && mob.aliance == side && at(mob, tile);
  });
}
// The first conscious mob of a side in line from a tile to the edge of the map; null for none.
template <typename AnyGame>
auto firstinline(AnyGame& game, Tile from, const Direction& direction, int side)
    -> decltype(&game.mob(0)) {
  const int reach = tilestotheedge(game, from, direction);
  for (int tiles = 1; tiles <= reach; ++tiles) {
    const auto here = standingon(game, step(from, direction, tiles), side);
    if (!here.empty()) return &*here.begin();
  }
  return nullptr;
}
// Everyone of a name, conscious or not.
template <typename AnyGame>
auto namesakes(AnyGame& game, std::string_view name) {
  return Those(everyone(game), [name](const Mob& mob) { return mob.mobname == name; });
}

// Whether somebody is yet to arrive.
inline bool tocome(const Game& game, const Mob& mob) {
  return !conscious(mob) && mob.spawntime > game.turnnumber;
}

// The furniture in play; that on a tile.
inline auto furniture(const Game& game) {
  return Those(allfurniture(game), [](const Item& item) { return onthemap(item); });
}
inline auto furnitureon(const Game& game, Tile tile) {
  return Those(allfurniture(game),
               [tile](const Item& item) { return onthemap(item) && at(item, tile); });
}

}  // namespace duskmarch
