#include <algorithm>
#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "campaign/creationbonuses.h"
#include "campaign/learning.h"
#include "campaign/savegame.h"
#include "campaign/screens.h"
#include "campaign/vigilantes.h"
#include "shell/speech/pages.h"
#include "shell/speech/speech.h"
#include "values/utf8.h"

namespace duskmarch {
namespace {

// The entries before the last, which finishes.
enum Entry { nameentry = 1, genderentry, firstbonus, secondbonus, thirdbonus };

struct GenderWords {
  std::string_view described;
  std::string_view set;
};

constexpr std::array<GenderWords, gender::genderless> genderwords = {{
    {"a male", "male"},
    {"a female", "female"},
    {"genderless", "genderless"},
}};

Mob& newcomer(Game& game) {
  return game.mob(game.selected);
}

int nextof3(int choice) {
  return choice >= 3 ? 1 : choice + 1;
}

const GenderWords& words(int gender) {
  return genderwords[static_cast<std::size_t>(gender - 1)];
}

void speakname(Game& game) {
  const std::string& name = newcomer(game).mobname;
  sayit(game, name.empty() ? "Give your vigilante a name (no spaces)."
                           : name + ".  Press Enter to set a new name.");
}

// A name is one word and one line of the saved game, and no bracket in it passes for a plan.
std::string asname(std::string_view text) {
  std::string name;
  for (std::size_t at = 0; at < text.size(); at += codepointsize(text, at)) {
    const char32_t letter = codepointat(text, at).value;
    const bool control = letter < U' ' || (letter >= 0x7F && letter < 0xA0);
    if (control || letter == U' ' || letter == U'[' || letter == U']') continue;
    name += codepointrange(text.substr(at), 0, 1);
  }
  return name;
}

// Whoever bore these names would be thrown in place of the furniture.
bool meansfurniture(std::string_view name) {
  return equalignoringcase(name, "chair") || equalignoringcase(name, "table");
}

void askname(Game& game) {
  constexpr std::string_view prompt = "Enter your vigilantes name, or leave blank to cancel.";
  const std::string name = asname(inputbox(game, "Name", prompt));
  if (name.empty()) {
    sayit(game, "Canceled.");
    return;
  }
  if (meansfurniture(name)) {
    sayit(game, "This name cannot be used.");
    return;
  }
  newcomer(game).mobname = name;
  sayit(game, "Name set to " + name);
}

// Nobody has chosen yet.
void settlegender(Mob& hero) {
  if (hero.gender < gender::male || hero.gender > gender::genderless) hero.gender = gender::male;
}

void speakgender(Game& game) {
  settlegender(newcomer(game));
  const Number& chosen = newcomer(game).gender;
  sayit(game, "This vigilante is " + std::string(words(chosen).described) +
                  ".  Press Enter to change it.");
}

void changegender(Game& game) {
  Number& chosen = newcomer(game).gender;
  chosen = nextof3(chosen);
  sayit(game, "Set to " + std::string(words(chosen).set) + ".");
}

int& choiceof(Game& game, Bonuses which) {
  switch (which) {
    case Bonuses::first: return game.bonus1;
    case Bonuses::second: return game.bonus2;
    default: return game.bonus3;
  }
}

const Bonus& chosenbonus(Game& game, Bonuses which) {
  return bonusgroup(which).choices[static_cast<std::size_t>(choiceof(game, which) - 1)];
}

// In the order in which they are learnt.
constexpr std::array bonusorder = {Bonuses::third, Bonuses::second, Bonuses::first};

void describebonus(Game& game, const Bonus& bonus, std::string_view before,
                   std::string_view after) {
  std::string text(before);
  text.append(bonus.name).append(after).append(".  ").append(bonus.description);
  sayit(game, text + "  Press Enter to change it.");
}

void speakbonus(Game& game, Bonuses which) {
  describebonus(game, chosenbonus(game, which), std::string(bonusgroup(which).title) + ", ", "");
}

void changebonus(Game& game, Bonuses which) {
  int& choice = choiceof(game, which);
  choice = nextof3(choice);
  describebonus(game, chosenbonus(game, which), "", " bonus");
}

bool nametaken(Game& game) {
  int bearers = 0;  // the newcomer is one
  for (int slot = 1; slot <= heroslots; ++slot) {
    if (equalignoringcase(game.mob(slot).mobname, newcomer(game).mobname)) ++bearers;
  }
  return bearers >= 2;
}

void startvalues(Mob& hero) {
  settlegender(hero);
  hero.aliance = aliance::heroes;
  hero.mobtype = mobtype::hero;
  hero.maxhealth = 8;
  hero.health = 8;
  hero.maxfight = 4;
  hero.fight = 4;
  hero.abilitycount = 0;
  hero.gun = 0;
}

void finish(Game& game) {
  if (nametaken(game)) {
    sayit(game, "This name has already been used.");
    return;
  }
  startvalues(newcomer(game));
  for (const Bonuses which : bonusorder) {
    for (const std::string_view ability : chosenbonus(game, which).abilities) {
      learn(game, game.selected, ability);
    }
  }
  keepchoices(game);
  sayit(game, newcomer(game).mobname + " recruited.  Back at the hideout.");
  enterscreen(game, screen::hideout);
}

}  // namespace

void speakcreation(Game& game) {
  switch (game.menupos) {
    case nameentry: return speakname(game);
    case genderentry: return speakgender(game);
    case firstbonus: return speakbonus(game, Bonuses::first);
    case secondbonus: return speakbonus(game, Bonuses::second);
    case thirdbonus: return speakbonus(game, Bonuses::third);
    default: return sayit(game, "Finish character creation");
  }
}

std::string newcomerwords(Game& game) {
  std::vector<std::string> learnt;
  for (const Bonuses which : bonusorder) {
    for (const std::string_view ability : chosenbonus(game, which).abilities) {
      learnt.emplace_back(ability);
    }
  }
  std::string uses;
  for (auto ability = learnt.begin(); ability != learnt.end(); ++ability) {
    if (std::find(learnt.begin(), ability, *ability) != ability) continue;
    uses += (uses.empty() ? "" : ", ") + *ability + " " +
            std::to_string(std::count(ability, learnt.end(), *ability));
  }
  return newcomer(game).mobname + ".  These bonuses give " + uses + ".";
}

void performcreation(Game& game, int /*shift*/) {
  switch (game.menupos) {
    case nameentry: return askname(game);
    case genderentry: return changegender(game);
    case firstbonus: return changebonus(game, Bonuses::first);
    case secondbonus: return changebonus(game, Bonuses::second);
    case thirdbonus: return changebonus(game, Bonuses::third);
    default: return finish(game);
  }
}

}  // namespace duskmarch
