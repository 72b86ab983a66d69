#include "heroturn/optionlist.h"

#include "heroturn/offers.h"

namespace duskmarch {

void listoptions(Game& game, int w) {
  game.list2.clear();
  for (const Offer& offer : offers(game, w == 0 ? game.selected : w)) {
    list2additem(game, offertext(game, offer));
  }
}

void list2additem(Game& game, std::string_view option) {
  game.list2.emplace_back(option);
}

}  // namespace duskmarch
