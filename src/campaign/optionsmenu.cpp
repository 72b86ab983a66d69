#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>

#include "campaign/abilitytable.h"
#include "campaign/screens.h"
#include "heroturn/options.h"
#include "shell/speech/speech.h"

namespace duskmarch {
namespace {

// An option is its ability's name alone, or followed by what it is aimed at.
bool isoptionof(std::string_view option, std::string_view ability) {
  return option.starts_with(ability) &&
         (option.size() == ability.size() || option[ability.size()] == ' ');
}

// Empty for an option that explains itself.
std::string_view description(std::string_view option) {
  if (option == "Move") {
    return "Moving is only allowed if you are not currently engaged in a fight, or in some way "
           "held in place.  You can move only 1 tile per turn.";
  }
  const auto rows = abilitytable();
  const auto row = std::ranges::find_if(
      rows, [&](const AbilityRow& ability) { return isoptionof(option, ability.name); });
  return row == rows.end() ? "" : row->description;
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
  if (const std::string_view explained = description(text); !explained.empty()) {
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
