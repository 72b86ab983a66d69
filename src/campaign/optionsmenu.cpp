#include <cstddef>
#include <string>
#include <string_view>

#include "campaign/screens.h"
#include "heroturn/dooption.h"
#include "heroturn/offers.h"
#include "shell/speech/speech.h"

namespace duskmarch {
namespace {

// Empty for an option that explains itself.
std::string_view description(std::string_view option) {
  const Order* const order = readoption(option).order;
  if (order == nullptr) return "";
  if (!order->description.empty()) return order->description;
  const Order* const ability = findorder(order->ability);
  return ability == nullptr ? "" : ability->description;
}

// False, and spoken of, when the hero has nothing left to do.
bool anyoptions(Game& game) {
  if (!game.list2.empty()) return true;
  sayit(game,
        "No more options this turn.  Press N to cycle to another character, or press E to end "
        "your turn.");
  return false;
}

const std::string& currentoption(const Game& game) {
  return game.list2[static_cast<std::size_t>(game.menupos - 1)];
}

}  // namespace

void speakoption(Game& game) {
  if (!anyoptions(game)) return;
  std::string text = currentoption(game);
  const std::string_view explained = description(text);
  if (game.fulldescriptions && !explained.empty()) {
    text.append(".  ").append(explained);
  }
  sayit(game, text);
}

void performoption(Game& game, int /*shift*/) {
  if (!anyoptions(game)) return;
  sayit(game, "");
  dooption(game, currentoption(game));
}

}  // namespace duskmarch
