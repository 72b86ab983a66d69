#include "resolution/planentry.h"

#include "world/whostands.h"

namespace duskmarch {

PlanEntry readentry(std::string_view entry) {
  const auto space = entry.rfind(' ');
  if (space == std::string_view::npos || !entry.starts_with('[') || !entry.ends_with(']')) {
    return {};
  }
  return {.option = entry.substr(1, space - 1),
          .direction = finddirection(entry.substr(space + 1, entry.size() - space - 2))};
}

std::string_view nameofthrown(std::string_view option) {
  if (!option.starts_with(plannedoption::throwperson)) return {};
  option.remove_prefix(plannedoption::throwperson.size());
  return option.starts_with(' ') ? option.substr(1) : std::string_view();
}

int thrownby(const Game& game, const Mob& thrower, std::string_view option) {
  const std::string_view name = nameofthrown(option);
  int named = 0;
  for (const Mob& hero : standingon(game, tileof(thrower), aliance::heroes)) {
    if (!name.empty() && hero.mobname == name) named = slotof(game, hero);
  }
  return named;
}

}  // namespace duskmarch
