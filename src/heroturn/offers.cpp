#include "heroturn/offers.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <span>

#include "heroturn/abilitynumbers.h"
#include "resolution/tags.h"
#include "world/narration.h"
#include "world/whostands.h"

namespace duskmarch {

namespace {

bool foe(const Mob& mob, const Mob& other) {
  return other.aliance != mob.aliance;
}

// Columns and rows together: nobody steps aslant.
int tilesapart(const Mob& mob, const Mob& other) {
  return std::abs(mob.mobx - other.mobx) + std::abs(mob.moby - other.moby);
}

bool foewithin(const Mob& mob, const Mob& other, int reach) {
  return foe(mob, other) && !sametile(mob, other) && tilesapart(mob, other) <= reach;
}

struct AbilityRows {
  std::string_view ability;
  std::span<const Order> rows;
};

constexpr bool beginsrows(std::size_t row) {
  return row == 0 || orders[row].ability != orders[row - 1].ability;
}

constexpr std::size_t abilitycount = [] {
  std::size_t count = 0;
  for (std::size_t row = 0; row < orders.size(); ++row) count += beginsrows(row) ? 1 : 0;
  return count;
}();

// An ability's rows stand together. Looked up often, so found once.
constexpr auto rowsbyability = [] {
  std::array<AbilityRows, abilitycount> found;
  std::size_t next = 0;
  for (std::size_t row = 0; row < orders.size(); ++row) {
    if (beginsrows(row)) found[next++] = {orders[row].ability, {&orders[row], 0}};
    std::span<const Order>& rows = found[next - 1].rows;
    rows = {rows.data(), rows.size() + 1};
  }
  return found;
}();

// Of no ability: what everybody can do.
std::span<const Order> ordersof(std::string_view ability) {
  const auto* const found = std::ranges::find(rowsbyability, ability, &AbilityRows::ability);
  return found == rowsbyability.end() ? std::span<const Order>() : found->rows;
}

// Calls `use` for each ability of which a use is left, in the mob's own order.
template <typename Use>
void foreachability(const Mob& mob, Use use) {
  for (int k = 1; k <= mob.abilitycount; ++k) {
    const Ability& ability = mob.abilities[static_cast<std::size_t>(k)];
    if (ability.abilityuses > 0) use(ability.abilityname);
  }
}

bool servesasawayout(const Game& game, const Mob& mob, const Order& row) {
  if (!row.waysout) return false;
  if (row.upon == nullptr) return true;
  const auto here = standingon(game, tileof(mob));
  return std::any_of(here.begin(), here.end(),
                     [&](const Mob& other) { return row.upon(game, mob, other); });
}

// A fight holds the mob, it strikes no blow of its own, and none of its abilities would change
// that: what is left is to fight.
bool helplesslyheld(const Game& game, const Mob& mob) {
  if (mob.engaged != 1 || hastag(mob.action, tag::fight)) return false;
  bool helpless = true;
  foreachability(mob, [&](std::string_view ability) {
    for (const Order& row : ordersof(ability)) {
      if (servesasawayout(game, mob, row)) helpless = false;
    }
  });
  return helpless;
}

bool takesorders(const Mob& mob) {
  return conscious(mob) && !hastag(mob.status, tag::dazed);
}

constexpr std::size_t usuallyenough = 16;

class Listing {
 public:
  Listing(const Game& game, const Mob& mob) : game_(game), mob_(mob) {
    offers_.reserve(usuallyenough);
  }

  // What needs no ability and no furniture.
  void offerbasics() { offerorders(ordersof({})); }

  void offerabilities() {
    foreachability(mob_, [this](std::string_view ability) {
      const std::span<const Order> rows = ordersof(ability);
      offerorders(rows);
      offerfurniture(rows);
    });
  }

  // The orders that take furniture, piece by piece.
  void offerfurniture(std::span<const Order> rows) {
    if (std::ranges::all_of(rows, &std::string_view::empty, &Order::furniture)) return;
    for (const Item& item : furnitureon(game_, tileof(mob_))) {
      for (const Order& row : rows) {
        if (row.furniture == item.itemname) offers_.push_back({&row});
      }
    }
  }

  std::vector<Offer> done() && { return std::move(offers_); }

 private:
  void offerorders(std::span<const Order> rows) {
    for (const Order& row : rows) {
      if (row.furniture.empty()) offer(row);
    }
  }

  void offer(const Order& row) {
    if (row.upon == nullptr) {
      if (row.when == nullptr || row.when(mob_)) offers_.push_back({&row});
      return;
    }
    for (const Mob& other : standing(game_)) {
      if (row.upon(game_, mob_, other)) offers_.push_back({&row, slotof(game_, other)});
    }
  }

  const Game& game_;
  const Mob& mob_;
  std::vector<Offer> offers_;
};

}  // namespace

bool upon::whomtofight(const Game& game, const Mob& mob, const Mob& other) {
  if (!foehere(game, mob, other)) return false;
  return other.action.empty() || mob.target != slotof(game, other) || helplesslyheld(game, mob);
}
bool upon::foehere(const Game&, const Mob& mob, const Mob& other) {
  return foe(mob, other) && sametile(mob, other);
}
// Nobody knocks himself out on purpose.
bool upon::foetobutt(const Game& game, const Mob& mob, const Mob& other) {
  return mob.health > number::headbuttcost && foehere(game, mob, other);
}
bool upon::foebeside(const Game&, const Mob& mob, const Mob& other) {
  return foewithin(mob, other, 1);
}
bool upon::foeinreachofblast(const Game&, const Mob& mob, const Mob& other) {
  return foewithin(mob, other, number::blastreach);
}
bool upon::foeinreachofbolas(const Game&, const Mob& mob, const Mob& other) {
  return foewithin(mob, other, number::bolasreach);
}
bool upon::foeinreachofnet(const Game&, const Mob& mob, const Mob& other) {
  return foewithin(mob, other, number::netreach);
}
bool upon::foeinline(const Game&, const Mob& mob, const Mob& other) {
  return foe(mob, other) && (mob.mobx == other.mobx) != (mob.moby == other.moby);
}
bool upon::foeatthewall(const Game& game, const Mob& mob, const Mob& other) {
  return foe(mob, other) && (other.mobx == 1 || other.mobx == game.mapwidth || other.moby == 1 ||
                             other.moby == game.mapheight);
}
bool upon::ally(const Game&, const Mob& mob, const Mob& other) {
  return !foe(mob, other);
}

bool when::freetomove(const Mob& mob) {
  return mob.engaged == 0 && mob.hasmoved == 0;
}
bool when::fightingsomebody(const Mob& mob) {
  return mob.target != 0 && hastag(mob.action, tag::fight);
}

bool lackshealth(const Mob& mob) {
  return mob.health < mob.maxhealth;
}

std::vector<Offer> offers(const Game& game, int slot) {
  const Mob& mob = game.mob(slot);
  if (!takesorders(mob)) return {};
  Listing listing(game, mob);
  listing.offerbasics();
  if (mob.hasacted == 0) {
    listing.offerabilities();
    listing.offerfurniture(ordersof({}));
  }
  return std::move(listing).done();
}

std::vector<Offer> offersofabilities(const Game& game, int slot) {
  const Mob& mob = game.mob(slot);
  if (!takesorders(mob) || mob.hasacted != 0) return {};
  Listing listing(game, mob);
  listing.offerabilities();
  return std::move(listing).done();
}

std::string offertext(const Game& game, const Offer& offer) {
  if (offer.other == 0) return std::string(offer.order->name);
  return sentence({offer.order->name, " ", game.mob(offer.other).mobname});
}

OptionLine readoption(std::string_view line) {
  OptionLine found;
  for (const Order& row : orders) {
    if (!line.starts_with(row.name)) continue;
    // Of two orders that begin alike ("Throw" and "Throw chair") the longer one is meant.
    if (found.order != nullptr && row.name.size() < found.order->name.size()) continue;
    const std::string_view rest = line.substr(row.name.size());
    const bool uponsomebody = row.upon != nullptr;
    const bool fits = uponsomebody ? rest.starts_with(' ') : rest.empty();
    if (fits) found = {&row, uponsomebody ? rest.substr(1) : rest};
  }
  return found;
}

}  // namespace duskmarch
