#include "heroturn/options.h"

#include <array>
#include <cctype>
#include <string_view>

#include "heroturn/heroactions.h"
#include "heroturn/optionlist.h"
#include "resolution/melee.h"
#include "shell/speech/pages.h"
#include "shell/speech/speech.h"
#include "world/directions.h"
#include "world/drawnmap.h"
#include "world/tables.h"

namespace duskmarch {

void spendaction(Game& game, Mob& hero, std::string_view ability) {
  hero.hasacted = 1;
  useup(game, game.selected, ability, 1);
}

void creditknockout(Mob& hero) {
  if (hero.aliance == aliance::heroes) hero.earnedpoints += 1;
}

namespace {

// An option by its whole text.
struct PlainOption {
  std::string_view text;
  void (*perform)(Game& game, Mob& hero);
};
constexpr std::array plainoptions{
    PlainOption{"Don't target anyone", option::targetnobody},
    PlainOption{"Shield", option::shield},
    PlainOption{"Smoke bombs", option::smokebombs},
    PlainOption{"Second wind", option::secondwind},
    PlainOption{"Flip table", option::fliptable},
};

// An option by its beginning, which the word of a direction completes.
struct DirectedOption {
  std::string_view beginning;
  bool travels;  // the hero itself goes that way, and must not leave the map
  void (*perform)(Game& game, Mob& hero, const Direction& direction);
};
constexpr std::array directedoptions{
    DirectedOption{"Move ", true, option::move},
    DirectedOption{"Dive ", true, option::dive},
    DirectedOption{"Hook ", true, option::hook},
    DirectedOption{"Throw table ", false, option::throwtable},
    DirectedOption{"Throw chair ", false, option::throwchair},
};

// An option by its beginning, which the name of one mob completes.
struct NamedOption {
  std::string_view beginning;
  void (*perform)(Game& game, Mob& hero, Mob& other);
  bool (*worthwhile)(const Mob& other) = nullptr;  // else nothing happens and nothing is spent
};
constexpr std::array namedoptions{
    NamedOption{"Combo ", option::combo},
    NamedOption{"Headbutt ", option::headbutt},
    NamedOption{"Kick ", option::kick},
    NamedOption{"Blast ", option::blast},
    NamedOption{"Bolas ", option::bolas},
    NamedOption{"Net ", option::net},
    NamedOption{"Pin ", option::pin},
    NamedOption{"Grapnel ", option::grapnel},
    NamedOption{"Heal ", option::heal, option::lackshealth},
};

// An option by its beginning, whose rest the option itself reads.
struct OtherOption {
  std::string_view beginning;
  void (*perform)(Game& game, Mob& hero, std::string_view rest);
};
constexpr std::array otheroptions{
    OtherOption{"Target ", option::target},
    OtherOption{"Dust ", option::dust},
    OtherOption{"Throw ", option::throwperson},
};

bool needsdirection(std::string_view option) {
  return option == "Move" || option == "Dive" || option == "Hook" || option.starts_with("Throw ");
}

void refuse(Game& game) {
  messagebox(game, "", "Canceled");
}

const Direction* directionanswered(std::string_view answer) {
  if (answer.size() != 1) return nullptr;
  const int letter = std::toupper(static_cast<unsigned char>(answer.front()));
  for (const Direction& direction : directions) {
    if (direction.word.front() == letter) return &direction;
  }
  return nullptr;
}

// Completes an option by the direction that the player gives; false when it was called off.
bool adddirection(Game& game, std::string& option) {
  static constexpr std::string_view prompt =
      "Enter N S E W to choose your direction, or leave blank to cancel.";
  const bool spoken = game.speechmode == 0;
  if (spoken) sayit(game, prompt);
  const std::string answer = inputbox(game, "Choose direction", prompt, spoken);
  if (answer.empty()) {
    sayit(game, "Canceled.");
    return false;
  }
  const Direction* direction = directionanswered(answer);
  if (direction == nullptr) {
    refuse(game);
    return false;
  }
  option.append(" ").append(direction->word);
  return true;
}

enum class Outcome { notthiskind, stopped, performed };

Outcome performplain(Game& game, Mob& hero, std::string_view option) {
  for (const PlainOption& row : plainoptions) {
    if (option != row.text) continue;
    row.perform(game, hero);
    return Outcome::performed;
  }
  return Outcome::notthiskind;
}

Outcome performdirected(Game& game, Mob& hero, std::string_view option) {
  for (const DirectedOption& row : directedoptions) {
    if (!option.starts_with(row.beginning)) continue;
    const Direction* direction = finddirection(option.substr(row.beginning.size()));
    if (direction == nullptr) continue;
    if (row.travels && !onthemap(game, step(tileof(hero), *direction))) {
      refuse(game);
      return Outcome::stopped;
    }
    row.perform(game, hero, *direction);
    return Outcome::performed;
  }
  return Outcome::notthiskind;
}

// The highest slot of a mob of that name; 0 when there is none.
int findmob(const Game& game, std::string_view name) {
  int found = 0;
  for (int slot = 1; slot <= game.mobcount; ++slot) {
    if (game.mob(slot).mobname == name) found = slot;
  }
  return found;
}

Outcome performnamed(Game& game, Mob& hero, std::string_view option) {
  for (const NamedOption& row : namedoptions) {
    if (!option.starts_with(row.beginning)) continue;
    const int slot = findmob(game, option.substr(row.beginning.size()));
    if (slot == 0) return Outcome::notthiskind;
    hero.target = slot;
    Mob& other = game.mob(slot);
    if (row.worthwhile != nullptr && !row.worthwhile(other)) return Outcome::stopped;
    row.perform(game, hero, other);
    return Outcome::performed;
  }
  return Outcome::notthiskind;
}

Outcome performother(Game& game, Mob& hero, std::string_view option) {
  for (const OtherOption& row : otheroptions) {
    if (!option.starts_with(row.beginning)) continue;
    row.perform(game, hero, option.substr(row.beginning.size()));
    return Outcome::performed;
  }
  return Outcome::notthiskind;
}

Outcome perform(Game& game, std::string_view option) {
  Mob& hero = game.mob(game.selected);
  for (const auto kind : {performplain, performdirected, performnamed, performother}) {
    if (const Outcome outcome = kind(game, hero, option); outcome != Outcome::notthiskind) {
      return outcome;
    }
  }
  return Outcome::notthiskind;
}

void commonending(Game& game) {
  for (int slot = 1; slot <= game.mobcount; ++slot) {
    if (conscious(game.mob(slot))) engagedcheck(game, slot);
  }
  sayit(game, game.list1.empty() ? std::string_view{} : game.list1.front());
  drawscreen(game);
  listoptions(game, 0);
}

}  // namespace

void dooption(Game& game, std::string option) {
  if (needsdirection(option) && !adddirection(game, option)) return;
  if (perform(game, option) == Outcome::stopped) return;
  commonending(game);
}

}  // namespace duskmarch
