#include "shell/playerkeys.h"

#include <algorithm>
#include <array>
#include <string>

#include "campaign/menus.h"
#include "campaign/savegame.h"
#include "campaign/vigilantes.h"
#include "missions/turnreport.h"
#include "resolution/danger.h"
#include "resolution/inspection.h"
#include "shell/getabout.h"
#include "shell/helppage.h"
#include "shell/speech/comfort.h"
#include "shell/speech/keycodes.h"
#include "shell/speech/speech.h"
#include "world/tables.h"

namespace duskmarch {

namespace {

void sayinmission(Game& game, std::string (*words)(const Game&)) {
  sayit(game, game.missionunderway ? words(game) : std::string(nomission));
}

bool outsidemissions(const Game& game) {
  return game.menuname == screen::creation || game.menuname == screen::upgrades ||
         game.menuname == screen::hideout;
}

std::string selectedwords(const Game& game) {
  const bool somebody = game.mob(game.selected).aliance == aliance::heroes;
  return somebody ? herowords(game, game.selected) : std::string();
}

void tellhero(Game& game, KeyPress /*press*/) {
  if (!outsidemissions(game) && !game.missionunderway) return sayit(game, nomission);
  const std::string words = outsidemissions(game) ? vigilantewords(game) : selectedwords(game);
  sayit(game, words.empty() ? std::string(nobodychosen) : words);
}

void telltile(Game& game, KeyPress /*press*/) {
  sayinmission(game, [](const Game& now) { return tilewords(now, {now.cursorx, now.cursory}); });
}

void tellturn(Game& game, KeyPress /*press*/) {
  sayinmission(game, turnwords);
}

void telldanger(Game& game, KeyPress /*press*/) {
  sayinmission(game, dangerwords);
}

void toenemies(Game& game, KeyPress press) {
  gotoenemies(game, press.shift == modifier::shift);
}

void tohero(Game& game, KeyPress /*press*/) {
  gotohero(game);
}

void movehere(Game& game, KeyPress /*press*/) {
  movetocursor(game);
}

void tofirst(Game& game, KeyPress /*press*/) {
  gotoend(game, false);
}

void tolast(Game& game, KeyPress /*press*/) {
  gotoend(game, true);
}

void help(Game& game, KeyPress /*press*/) {
  openhelp(game, playerkeys());
}

void shortenorlengthen(Game& game, KeyPress /*press*/) {
  toggledescriptions(game);
}

void goback(Game& game, KeyPress /*press*/) {
  if (game.menuname == screen::mainmenu || game.menuname == screen::hideout) {
    return loadgame(game, autosavefile);
  }
  sayit(game, "F8 works in the main menu and in the hideout.");
}

void softercues(Game& game, KeyPress /*press*/) {
  changecuevolume(game, -1);
}

void loudercues(Game& game, KeyPress /*press*/) {
  changecuevolume(game, 1);
}

void softerambience(Game& game, KeyPress /*press*/) {
  changeambiencevolume(game, -1);
}

void louderambience(Game& game, KeyPress /*press*/) {
  changeambiencevolume(game, 1);
}

void listsounds(Game& game, KeyPress /*press*/) {
  opensounds(game);
}

void othervoice(Game& game, KeyPress press) {
  changevoice(game, press.shift == modifier::shift ? -1 : 1);
}

constexpr unsigned escapes = onscreen::mainmenu | onscreen::creation | onscreen::upgrades;
constexpr unsigned somebodys = onscreen::all & ~onscreen::mainmenu;
constexpr unsigned atrest = onscreen::mainmenu | onscreen::hideout;

constexpr std::array keys = {
    PlayerKey{.keys = "Up, Down, Left, Right",
              .told = onscreen::map,
              .does = "go one tile north, south, west or east, and hear what is there"},
    PlayerKey{.keys = "Down, Right", .told = onscreen::menus, .does = "the next entry"},
    PlayerKey{.keys = "Up, Left", .told = onscreen::menus, .does = "the entry before"},
    PlayerKey{.keys = "Home",
              .told = onscreen::menus,
              .does = "the first entry",
              .code = key::home,
              .acts = onscreen::menus,
              .act = tofirst},
    PlayerKey{.keys = "End",
              .told = onscreen::menus,
              .does = "the last entry",
              .code = key::end,
              .acts = onscreen::menus,
              .act = tolast},
    PlayerKey{.keys = "Enter",
              .told = onscreen::map,
              .does = "move the selected hero to this tile, if it is one step away",
              .code = key::enter,
              .acts = onscreen::map,
              .act = movehere},
    PlayerKey{.keys = "Enter", .told = onscreen::menus, .does = "choose the entry that you heard"},
    PlayerKey{.keys = "Shift+Enter",
              .told = onscreen::upgrades,
              .does = "buy what you heard; Enter alone only asks"},
    PlayerKey{.keys = "Shift+Enter",
              .told = onscreen::hideout,
              .does = "begin the mission; Enter alone only asks"},
    PlayerKey{.keys = "Space", .told = onscreen::map, .does = "give orders to the selected hero"},
    PlayerKey{.keys = "Space", .told = onscreen::orders, .does = "back to the map"},
    PlayerKey{.keys = "N", .told = onscreen::mission, .does = "select your next hero"},
    PlayerKey{.keys = "E",
              .told = onscreen::mission,
              .does = "with Shift, end your turn: plans are carried out, and enemies move"},
    PlayerKey{.keys = "H",
              .told = somebodys,
              .does = "your hero: health, what can still be done, abilities and the uses left",
              .code = key::h,
              .acts = onscreen::all,
              .act = tellhero},
    PlayerKey{.keys = "I",
              .told = onscreen::mission,
              .does = "inspect the map cursor's tile: health, plans, furniture",
              .code = key::i,
              .acts = onscreen::all,
              .act = telltile},
    PlayerKey{.keys = "D",
              .told = onscreen::mission,
              .does = "danger: which tiles guns, kicks and throws will hit; fights are left out",
              .code = key::d,
              .acts = onscreen::all,
              .act = telldanger},
    PlayerKey{.keys = "T",
              .told = onscreen::mission,
              .does = "turn, objective, and how many are standing",
              .code = key::t,
              .acts = onscreen::all,
              .act = tellturn},
    PlayerKey{.keys = "G",
              .told = onscreen::mission,
              .does = "map cursor to the next enemies; with Shift, to those before",
              .code = key::g,
              .acts = onscreen::all,
              .act = toenemies},
    PlayerKey{.keys = "B",
              .told = onscreen::mission,
              .does = "map cursor back to the selected hero",
              .code = key::b,
              .acts = onscreen::all,
              .act = tohero},
    PlayerKey{.keys = "M", .told = onscreen::mission, .does = "the next enemy on this tile"},
    PlayerKey{.keys = "V",
              .told = onscreen::mission,
              .does = "the same in fewer words, with the short names of plans"},
    PlayerKey{.keys = "Z", .told = onscreen::mission, .does = "where your heroes are"},
    PlayerKey{.keys = "X", .told = onscreen::mission, .does = "where the enemies are"},
    PlayerKey{.keys = "C", .told = onscreen::mission, .does = "where tables and chairs are"},
    PlayerKey{.keys = "L", .told = onscreen::mission, .does = "what happened so far, as a page"},
    PlayerKey{.keys = "R, Delete, Backspace, Minus, Equals, Keypad plus, Keypad minus",
              .told = onscreen::menus,
              .does = "say the entry again"},
    PlayerKey{.keys = "Escape", .told = escapes, .does = "go to the last entry"},
    PlayerKey{.keys = "F8",
              .told = atrest,
              .does = "back to what was kept by itself; after a lost mission, to before it",
              .code = key::f8,
              .acts = onscreen::all,
              .act = goback},
    PlayerKey{.keys = "F9", .told = atrest, .does = "load the game saved at the last victory"},
    PlayerKey{.keys = "Shift+Escape", .told = onscreen::all, .does = "to the main menu"},
    PlayerKey{.keys = "Ctrl", .told = onscreen::all, .does = "silence"},
    PlayerKey{.keys = "Right bracket, Period",
              .told = onscreen::all,
              .does = "what was said before; with Shift, five lines at a time"},
    PlayerKey{.keys = "Left bracket, Comma", .told = onscreen::all, .does = "newer lines again"},
    PlayerKey{.keys = "Page Up, Page Down",
              .told = onscreen::all,
              .does = "make the game's own voice faster or slower"},
    PlayerKey{.keys = "Tab",
              .told = onscreen::all,
              .does = "the next way to speak: own voice, screen reader, speech service"},
    PlayerKey{.keys = "F2",
              .told = onscreen::all,
              .does = "descriptions of orders and upgrades off or on",
              .code = key::f2,
              .acts = onscreen::all,
              .act = shortenorlengthen},
    PlayerKey{.keys = "F3",
              .told = onscreen::all,
              .does = "sounds of fights and of the map quieter; 0 is off",
              .code = key::f3,
              .acts = onscreen::all,
              .act = softercues},
    PlayerKey{.keys = "F4",
              .told = onscreen::all,
              .does = "the same louder; 10 is the most",
              .code = key::f4,
              .acts = onscreen::all,
              .act = loudercues},
    PlayerKey{.keys = "F5",
              .told = onscreen::all,
              .does = "the sound of the place quieter; 0 is off",
              .code = key::f5,
              .acts = onscreen::all,
              .act = softerambience},
    PlayerKey{.keys = "F6",
              .told = onscreen::all,
              .does = "the same louder; 10 is the most",
              .code = key::f6,
              .acts = onscreen::all,
              .act = louderambience},
    PlayerKey{.keys = "F7",
              .told = onscreen::all,
              .does = "a page with all sounds and what they mean; there F7 plays one",
              .code = key::f7,
              .acts = onscreen::all,
              .act = listsounds},
    PlayerKey{.keys = "F11",
              .told = onscreen::all,
              .does = "the own voice's next voice; with Shift, the one before",
              .code = key::f11,
              .acts = onscreen::all,
              .act = othervoice},
    PlayerKey{.keys = "F1",
              .told = onscreen::all,
              .does = "this help, on every screen; pages have none of their own",
              .code = key::f1,
              .acts = onscreen::all,
              .act = help},
};

}  // namespace

std::span<const PlayerKey> playerkeys() {
  return keys;
}

bool playerkey(Game& game, KeyPress press) {
  if ((press.shift & (modifier::ctrl | modifier::alt)) != 0) return false;
  const unsigned here = 1U << static_cast<unsigned>(game.menuname);
  const auto* const row = std::ranges::find_if(keys, [&](const PlayerKey& known) {
    return known.act != nullptr && known.code == press.keycode && (known.acts & here) != 0;
  });
  if (row == keys.end()) return false;
  row->act(game, press);
  return true;
}

}  // namespace duskmarch
