// Which orders may be given now.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "game.h"
#include "heroturn/ordertable.h"

namespace duskmarch {

struct Offer {
  const Order* order = nullptr;
  int other = 0;  // the slot of whom it would be used upon; 0 for nobody
};

// What a mob may do now, hero or enemy, in the order of the option list. Two chairs on its tile
// offer the same throw twice.
std::vector<Offer> offers(const Game& game, int slot);
// Those of them that take an ability: all that enemies plan by.
std::vector<Offer> offersofabilities(const Game& game, int slot);

// The offer as the option list shows it: the order's name and whom it is used upon.
std::string offertext(const Game& game, const Offer& offer);

// The reverse: which order a line of the option list gives, and upon whom.
struct OptionLine {
  const Order* order = nullptr;  // null for a line that names none
  std::string_view name = {};    // of whom it is used upon
};
OptionLine readoption(std::string_view line);

}  // namespace duskmarch
