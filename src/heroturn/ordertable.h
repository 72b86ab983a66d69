// The orders of a hero, one row each: what the option list offers, the player hears, dooption()
// carries out and the upgrade menu sells all comes from here.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>

#include "game.h"
#include "heroturn/abilitynumbers.h"
#include "heroturn/orders.h"

namespace duskmarch {

// Which mobs an order may be used upon, by whom: asked of conscious `other`s alone.
using Upon = bool (*)(const Game& game, const Mob& mob, const Mob& other);
namespace upon {
bool whomtofight(const Game& game, const Mob& mob, const Mob& other);
bool foehere(const Game& game, const Mob& mob, const Mob& other);
bool foetobutt(const Game& game, const Mob& mob, const Mob& other);
bool foebeside(const Game& game, const Mob& mob, const Mob& other);
bool foeinreachofblast(const Game& game, const Mob& mob, const Mob& other);
bool foeinreachofbolas(const Game& game, const Mob& mob, const Mob& other);
bool foeinreachofnet(const Game& game, const Mob& mob, const Mob& other);
bool foeinline(const Game& game, const Mob& mob, const Mob& other);
bool foeatthewall(const Game& game, const Mob& mob, const Mob& other);
bool ally(const Game& game, const Mob& mob, const Mob& other);
}  // namespace upon

// When an order upon nobody is offered.
using When = bool (*)(const Mob& mob);
namespace when {
bool freetomove(const Mob& mob);
bool fightingsomebody(const Mob& mob);
}  // namespace when

// Whether it would do anything to somebody; where not, nothing is done and nothing spent.
using Worthwhile = bool (*)(const Mob& other);
bool lackshealth(const Mob& mob);

enum class Asks { nothing, direction };
// Of this turn's: the move or the one action. An ability's order also takes a use of the ability.
enum class Spends { nothing, themove, theaction };
// Several mobs may have the name that an order is used upon.
enum class Meaning { thelastofthatname, everyoneofthatname };

struct Price {
  int first = 0;   // upgrade points for learning the ability; 0: it cannot be learnt
  int second = 0;  // for one more use in each mission
};

struct Order {
  std::string_view name;          // as it is listed, before the name of whom it is used upon
  std::string_view ability = {};  // which it takes; none for what everybody can do
  Price price = {};               // of the ability, in the row of the same name
  Upon upon = nullptr;            // null: upon nobody
  Meaning meaning = Meaning::thelastofthatname;
  std::string_view furniture = {};  // the piece on the hero's tile that it takes
  When when = nullptr;              // null: always
  Worthwhile worthwhile = nullptr;  // null: always
  Asks asks = Asks::nothing;
  bool travels = false;  // the hero itself goes there, and must not leave the map
  bool waysout = false;  // may get somebody out of a fight that holds him
  Spends spends = Spends::theaction;
  void (&perform)(const Deed& deed);  // no row without it
  std::string_view description = {};  // of the ability, in the row of the same name
  int gun = 0;                        // whoever learns the ability and has none gets this one
};

// First what needs no ability, then the abilities in the order of the upgrade menu, those last that
// cannot be learnt; the orders of one ability stand together.
inline constexpr std::array orders{
    Order{.name = "Move",
          .when = when::freetomove,
          .asks = Asks::direction,
          .travels = true,
          .spends = Spends::themove,
          .perform = order::move,
          .description = "Moving is only allowed if you are not currently engaged in a fight, or "
                         "in some way held in place.  You can move only 1 tile per turn."},
    Order{.name = "Target",
          .upon = upon::whomtofight,
          .meaning = Meaning::everyoneofthatname,
          .perform = order::target},
    Order{.name = "Don't target anyone",
          .when = when::fightingsomebody,
          .spends = Spends::nothing,
          .perform = order::targetnobody},
    Order{.name = "Flip table", .furniture = "Table", .perform = order::fliptable},

    Order{.name = "Dive",
          .ability = "Dive",
          .price = {.first = 6, .second = 3},
          .asks = Asks::direction,
          .travels = true,
          .waysout = true,
          .perform = order::dive,
          .description = "Even if you are engaged in a fight, diving lets you move to an adjacent "
                         "tile.  It can also be a way to move 1 extra tile on your turn."},
    Order{.name = "Hook",
          .ability = "Hook",
          .price = {.first = 8, .second = 4},
          .asks = Asks::direction,
          .travels = true,
          .waysout = true,
          .perform = order::hook,
          .description = "Moves the hero to that edge of the map, stunning any enemies hit along "
                         "the way."},
    Order{.name = "Throw",
          .ability = "Throw",
          .price = {.first = 6, .second = 3},
          .upon = upon::foehere,
          .asks = Asks::direction,
          .waysout = true,
          .perform = order::throwperson,
          .description = "Throwing a person or table will send them 1 tile in the direction they "
                         "are thrown.  Any enemies on that new tile will be dazed when they are "
                         "hit."},
    Order{.name = "Throw chair",
          .ability = "Throw",
          .furniture = "Chair",
          .asks = Asks::direction,
          .perform = order::throwchair},
    Order{.name = "Throw table",
          .ability = "Throw",
          .furniture = "Table",
          .asks = Asks::direction,
          .perform = order::throwtable},
    Order{.name = "Dust",
          .ability = "Dust",
          .price = {.first = 8, .second = 4},
          .upon = upon::foehere,
          .meaning = Meaning::everyoneofthatname,
          .waysout = true,
          .perform = order::dust,
          .description = "The fighting ability of the target is greatly reduced."},
    Order{.name = "Kick",
          .ability = "Kick",
          .price = {.first = 8, .second = 4},
          .upon = upon::foebeside,
          .perform = order::kick,
          .description =
              "The hero moves into the target's tile, pushing them 1 tile further back.  "
              "The kicked enemy will be stunned."},
    Order{.name = "Smoke bombs",
          .ability = "Smoke bombs",
          .price = {.first = 10, .second = 5},
          .waysout = true,
          .perform = order::smokebombs,
          .description = "Surrounding tiles fill with smoke, which prevents anyone inside from "
                         "being shot.  Most enemies will stop moving once in smoke."},
    Order{.name = "Pin",
          .ability = "Pin",
          .price = {.first = 6, .second = 3},
          .upon = upon::foeatthewall,
          .waysout = true,
          .perform = order::pin,
          .description = "Enemies along the map's edge can be pinned, preventing them from moving "
                         "for a few turns."},
    Order{.name = "Blast",
          .ability = "Blast",
          .price = {.first = 10, .second = 5},
          .upon = upon::foeinreachofblast,
          .perform = order::blast,
          .description = "A ranged blast causes damage, and can disarm enemies with guns.",
          .gun = number::blastgun},
    Order{.name = "Headbutt",
          .ability = "Headbutt",
          .price = {.first = 6, .second = 3},
          .upon = upon::foetobutt,
          .waysout = true,
          .perform = order::headbutt,
          .description = "A flat amount of damage is dealt to both the target and the hero.  It's "
                         "a way to damage someone regardless of their fighting level."},
    Order{.name = "Grapnel",
          .ability = "Grapnel",
          .price = {.first = 12, .second = 6},
          .upon = upon::foeinline,
          .perform = order::grapnel,
          .description = "The target is grabbed and pulled to the hero's location, injured, and "
                         "left stunned."},
    Order{.name = "Shield",
          .ability = "Shield",
          .price = {.first = 8, .second = 4},
          .perform = order::shield,
          .description = "A shield is raised which protects the hero, and any allies on the same "
                         "tile, from incoming bullets."},
    Order{.name = "Heal",
          .ability = "Heal",
          .price = {.first = 12, .second = 6},
          .upon = upon::ally,
          .worthwhile = lackshealth,
          .perform = order::heal,
          .description = "Health is restored to the person, but not above their maximum."},
    Order{.name = "Second wind",
          .ability = "Second wind",
          .price = {.first = 12, .second = 6},
          .perform = order::secondwind,
          .description = "The hero's fighting level rises back to full strength."},
    Order{.name = "Combo",
          .ability = "Combo",
          .price = {.first = 10, .second = 5},
          .upon = upon::foehere,
          .waysout = true,
          .perform = order::combo,
          .description = "A normal melee fight is performed, but for this moment the fighting "
                         "skill of the hero is doubled."},
    Order{.name = "Bolas",
          .ability = "Bolas",
          .price = {.first = 6, .second = 3},
          .upon = upon::foeinreachofbolas,
          .perform = order::bolas,
          .description = "The target's fighting ability is lowered, until they can free themselves "
                         "from the net."},
    Order{.name = "Net", .ability = "Net", .upon = upon::foeinreachofnet, .perform = order::net},
};

// The row of that name; null when there is none.
constexpr const Order* findorder(std::string_view name) {
  const auto* const found = std::ranges::find(orders, name, &Order::name);
  return found == orders.end() ? nullptr : found;
}

// Whether the row is the one that holds its ability's price and description.
constexpr bool describesability(const Order& row) {
  return !row.ability.empty() && row.name == row.ability;
}
constexpr bool learnable(const Order& row) {
  return describesability(row) && row.price.first > 0;
}

// The abilities that can be learnt, in the order of the upgrade menu.
inline constexpr int learnableabilities =
    static_cast<int>(std::ranges::count_if(orders, learnable));
inline constexpr auto learnableorders = [] {
  std::array<const Order*, learnableabilities> rows{};
  std::size_t next = 0;
  for (const Order& row : orders) {
    if (learnable(row)) rows[next++] = &row;
  }
  return rows;
}();

// The name of an ability, held against the table by the compiler.
class AbilityName {
 public:
  consteval AbilityName(const char* name) : name_(name) {  // NOLINT(google-explicit-constructor)
    const auto named = [&](const Order& row) { return describesability(row) && row.name == name_; };
    if (!std::ranges::any_of(orders, named)) throw "there is no such ability";
  }
  constexpr operator std::string_view() const {
    return name_;
  }  // NOLINT(google-explicit-constructor)

 private:
  std::string_view name_;
};

// Rows that do not fit together do not compile.
namespace ordercheck {
constexpr bool consistent(const Order& row) {
  return !row.name.empty() && std::ranges::count(orders, row.name, &Order::name) == 1 &&
         (!row.travels || row.asks == Asks::direction);
}
constexpr bool ofanability(const Order& row) {
  const auto describes = [&](const Order& other) {
    return describesability(other) && other.ability == row.ability;
  };
  return row.ability.empty() ||
         (std::ranges::any_of(orders, describes) && row.spends == Spends::theaction);
}
constexpr bool described(const Order& row) {
  return !learnable(row) || (row.price.second > 0 && !row.description.empty());
}
// By row, how often the ability changes: once for each, where those of one stand together.
constexpr bool together() {
  std::size_t changes = 0;
  for (std::size_t n = 1; n < orders.size(); ++n) {
    if (orders[n].ability != orders[n - 1].ability) ++changes;
  }
  return changes == static_cast<std::size_t>(std::ranges::count_if(orders, describesability));
}
static_assert(std::ranges::all_of(orders, consistent), "an order contradicts another or itself");
static_assert(std::ranges::all_of(orders, ofanability), "an order has no ability's row");
static_assert(std::ranges::all_of(orders, described), "an ability lacks price or description");
static_assert(together(), "the orders of one ability stand apart");
}  // namespace ordercheck

}  // namespace duskmarch
