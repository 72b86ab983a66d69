#include <array>
#include <cstddef>
#include <limits>
#include <string>
#include <string_view>

#include "campaign/savegame.h"
#include "campaign/screens.h"
#include "missions/missions.h"
#include "shell/speech/speech.h"

namespace duskmarch {
namespace {

constexpr int missionentry = hideoutentries;

struct Place {
  std::string_view ordinal;
  int opensat;  // the mission that must have been begun
};

constexpr std::array<Place, heroslots> places = {{
    {"first", std::numeric_limits<int>::min()},
    {"second", 2},
    {"third", 4},
}};

const Place& placeof(int slot) {
  return places[static_cast<std::size_t>(slot - 1)];
}

bool open(const Game& game, int slot) {
  return game.missionnumber >= placeof(slot).opensat;
}

// An enemy that the test mission left in a hero's slot is nobody here.
bool recruited(const Game& game, int slot) {
  return game.mob(slot).aliance == aliance::heroes;
}

void speakhero(Game& game, const Mob& hero) {
  std::string text = hero.mobname + " has ";
  if (hero.upgradepoints == 0) {
    text += "no upgrade points to spend.";
  } else if (hero.upgradepoints == 1) {
    text += "1 upgrade point.  Press Enter to spend it.";
  } else {
    text += std::to_string(hero.upgradepoints) + " upgrade points.  Press Enter to spend them.";
  }
  sayit(game, text);
}

void speakplace(Game& game, int slot) {
  if (recruited(game, slot)) return speakhero(game, game.mob(slot));
  const std::string vigilante = std::string(placeof(slot).ordinal) + " vigilante";
  sayit(game, open(game, slot)
                  ? "Press Enter to recruit your " + vigilante + "."
                  : "Before recruiting your " + vigilante + ", you must complete more missions.");
}

void upgrade(Game& game, int slot) {
  if (game.mob(slot).upgradepoints <= 0) {
    sayit(game, "No upgrade points to spend.");
    return;
  }
  game.selected = slot;
  enterscreen(game, screen::upgrades);
  sayit(game, "Spend your points.");
}

void recruit(Game& game, int slot) {
  game.selected = slot;
  game.mob(slot).mobname = "PersonMan";
  game.bonus1 = game.bonus2 = game.bonus3 = 1;
  enterscreen(game, screen::creation);
  sayit(game, "Create your character");
}

void beginmission(Game& game, int shift) {
  if (!recruited(game, 1)) {
    sayit(game, "You must create a vigilante before you can proceede.");
  } else if (shift == 0) {
    sayit(game, "Hold Shift and press Enter to begin the next mission.");
  } else {
    game.waybackkept = keepprogress(game);
    game.missionunwon = true;
    game.missionnumber += 1;
    enterscreen(game, screen::map);
    startusout(game);
  }
}

}  // namespace

void speakhideout(Game& game) {
  if (game.menupos != missionentry) return speakplace(game, game.menupos);
  sayit(game, "Begin mission " + std::to_string(game.missionnumber + 1) + ".");
}

void performhideout(Game& game, int shift) {
  const int slot = game.menupos;
  if (slot == missionentry) return beginmission(game, shift);
  if (recruited(game, slot)) return upgrade(game, slot);
  if (open(game, slot)) recruit(game, slot);
}

}  // namespace duskmarch
