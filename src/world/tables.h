// The mob table, the item table, the tile tags, and the queries that every rule asks of them.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "game.h"
#include "values/hundredths.h"
#include "world/directions.h"

namespace duskmarch {

inline bool conscious(const Mob& mob) {
  return mob.health > 0;
}
inline bool onthemap(const Item& item) {
  return item.itemhealth > 0;
}
inline bool sametile(const Mob& one, const Mob& other) {
  return at(one, tileof(other));
}

// Everything a mission says of one enemy; see newmob().
struct NewMob {
  std::string_view name = {};
  std::string_view gender = {};  // "M" is male, anything else female
  int type = 0;
  int health = 0;
  int x = 0;
  int y = 0;
  int fight = 0;
  int gun = 0;
  std::string_view action = {};
  int spawntime = 0;  // the end of turn on which it arrives; 0: there from the start
  std::string_view spawntext = {};
};

// Creates an enemy in slot `mobcount` + 1, from a clean record, and returns the slot. One that is
// yet to arrive has health 0. There must be a free slot.
int newmob(Game& game, const NewMob& mob);

// Leaves a hero slot as it is when the program starts: nobody there.
void emptyheroslot(Mob& mob);

// Places a piece of furniture, "Table" or "Chair", in slot `itemcount` + 1. There must be one.
void newitem(Game& game, std::string_view name, int x, int y, int health);

// Gives mob `w` `uses` more uses of an ability, which it need not have yet.
void give(Game& game, int w, std::string_view ability, int uses);
// Spends `uses` uses of mob `w`'s ability; one that it lacks is ignored, and there is no floor.
void useup(Game& game, int w, std::string_view ability, int uses);

// Counts the conscious mobs from slot `shiftz` on that stand on a tile and belong to `side` (-1:
// either side). For the reason "fight" each counts by how much it can still fight.
Hundredths menhere(const Game& game, int shiftz, int x, int y, int side, std::string_view reason);
// The slots of all mobs, conscious or not, that are on another side than `side`.
std::vector<int> slotsagainst(const Game& game, int side);
// Counts the furniture in play from slot `shiftz` on that stands on a tile.
int itemshere(const Game& game, int shiftz, int x, int y);
// The highest slot of furniture in play of that name on a tile; 0 when there is none.
int finditem(const Game& game, int x, int y, std::string_view name);

// The tags of a tile; outside the grid they are empty and not to be changed.
const std::string& tiletags(const Game& game, int x, int y);
void addtiletag(Game& game, int x, int y, std::string_view tag, int copies);

// The fighting value that counts for a mob in a crowd of `crowd` on its own side, itself included:
// its conditions lower its stored skill; a crowd of exactly 2, 3, 4 or of 5 and more raises it.
Hundredths effectivefight(const Mob& mob, Hundredths crowd);

}  // namespace duskmarch
