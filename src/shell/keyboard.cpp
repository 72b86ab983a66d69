#include "shell/keyboard.h"

#include <algorithm>
#include <array>
#include <cassert>
#include <exception>
#include <string>

#include "audio/cues.h"
#include "audio/sounds.h"
#include "campaign/menus.h"
#include "campaign/savegame.h"
#include "debuglog.h"
#include "heroturn/optionlist.h"
#include "invariants.h"
#include "missions/missions.h"
#include "resolution/endturn.h"
#include "resolution/enemyreport.h"
#include "shell/helppage.h"
#include "shell/playerkeys.h"
#include "shell/speech/keycodes.h"
#include "shell/speech/pages.h"
#include "shell/speech/selfreading.h"
#include "shell/speech/speech.h"
#include "shell/speech/speechengines.h"
#include "shell/speech/speechsettings.h"
#include "shell/speech/spokenline.h"
#include "world/drawnmap.h"
#include "world/mapspeech.h"
#include "world/narration.h"
#include "world/nexthero.h"
#include "world/tables.h"

namespace duskmarch {

namespace {

constexpr std::array reviewkeys = {key::leftbracket, key::comma, key::rightbracket, key::period};
constexpr std::array menukeys = {
    key::left,        key::up, key::right, key::down,   key::minus, key::equals,   key::keypadplus,
    key::keypadminus, key::r,  key::del,   key::escape, key::enter, key::backspace};

template <std::size_t size>
bool isone(const std::array<int, size>& keys, int keycode) {
  return std::ranges::find(keys, keycode) != keys.end();
}

std::string selectedat(const Mob& hero) {
  return sentence(
      {" selected at location ", saycoords(hero.mobx), " ", std::to_string(int{hero.moby}), "."});
}

// The option list takes the keys, before its first entry.
void enteroptions(Game& game) {
  const Mob& hero = game.mob(game.selected);
  sayit(game, hero.mobname + selectedat(hero));
  listoptions(game, 0);
  game.menuname = screen::options;
  game.menupos = 0;
}

void togglecursormode(Game& game) {
  if (game.cursormode == 0) {
    game.cursormode = 1;
    game.menuname = screen::map;
    return saytile(game, game.cursorx, game.cursory);
  }
  game.cursormode = 0;
  game.cursorx = game.mob(game.selected).mobx;
  game.cursory = game.mob(game.selected).moby;
  enteroptions(game);
}

// Moves the map cursor by an arrow key; false at the edge of the map and for other keys.
bool movecursor(Game& game, int keycode) {
  switch (keycode) {
    case key::left:
      if (game.cursorx <= 1) return false;
      --game.cursorx;
      return true;
    case key::right:
      if (game.cursorx >= game.mapwidth) return false;
      ++game.cursorx;
      return true;
    case key::up:
      if (game.cursory <= 1) return false;
      --game.cursory;
      return true;
    case key::down:
      if (game.cursory >= game.mapheight) return false;
      ++game.cursory;
      return true;
    default: return false;
  }
}

bool isarrow(int keycode) {
  return keycode >= key::left && keycode <= key::down;
}

// An arrow on the map: a soft tone under the words, or the bump of its edge.
void walkcursor(Game& game, int keycode) {
  if (!movecursor(game, keycode)) return playcue(game, cue::mapedge, game.cursorx, game.cursory);
  playcue(game, toneof(game, game.cursorx, game.cursory), game.cursorx, game.cursory);
  saytile(game, game.cursorx, game.cursory);
  drawscreen(game);
}

void opensummary(Game& game) {
  showsummary(game);
  sayit(game, "");
  readsummary(game);
  game.desktop.window.processevents();
}

void selecthero(Game& game, int slot, std::string_view where) {
  game.selected = slot;
  sayit(game, game.mob(slot).mobname + std::string(where));
  listoptions(game, 0);
  drawscreen(game);
}

void selectnexthero(Game& game) {
  const int next = nexthero(game);
  if (next == 0) return sayit(game, "You only have " + game.mob(game.selected).mobname + ".");
  if (next < game.selected) return selecthero(game, next, " selected.");
  const Mob& hero = game.mob(next);
  if (at(hero, {game.cursorx, game.cursory})) {
    return selecthero(game, next, " selected at this location.");
  }
  selecthero(game, next, selectedat(hero));
}

void askforendofturn(Game& game, int shift) {
  if (shift == modifier::none) {
    sayit(game, "Hold Shift and press E to confirm ending your current turn.");
  } else if (shift == modifier::shift) {
    endturn(game);
  }
}

// Where somebody is made or improved, the next hero or the next turn would be somebody else's.
bool keepsselected(const Game& game) {
  return game.menuname == screen::creation || game.menuname == screen::upgrades;
}

// The keys that act on every screen, menus included.
void commonkey(Game& game, KeyPress press) {
  if (keepsselected(game) && (press.keycode == key::n || press.keycode == key::e)) return;
  switch (press.keycode) {
    case key::l: return opensummary(game);
    case key::n: return selectnexthero(game);
    case key::m: return mobcheck(game);
    case key::e: return askforendofturn(game, press.shift);
    case key::z: return rollcallofheroes(game);
    case key::x: return rollcallofenemies(game);
    case key::c: return rollcalloffurniture(game);
    case key::tab: return switchengine(game);
    case key::pageup: return changerate(game, 1);
    case key::pagedown: return changerate(game, -1);
    case key::v: return describeenemy(game);
    case key::f9:
      if (game.menuname == screen::mainmenu || game.menuname == screen::hideout) {
        loadgame(game, "game.sav");
      }
      return;
    default: return;
  }
}

void windowkey(Game& game, KeyPress press) {
  if (isone(reviewkeys, press.keycode)) return reviewhistory(game, press);
  game.reviewpos = 0;
  if (press.keycode == key::escape && press.shift == modifier::shift) {
    game.menuname = screen::mainmenu;
    game.menupos = 1;
    game.cursormode = 0;
    sayit(game, "Main menu");  // and the main menu gets the Escape as well
  }
  if (press.keycode == key::ctrl) sayit(game, "");
  if (press.keycode == key::space &&
      (game.menuname == screen::map || game.menuname == screen::options)) {
    return togglecursormode(game);
  }
  if (playerkey(game, press)) return;
  if (game.menuname != screen::map && isone(menukeys, press.keycode)) return menus(game, press);
  if (game.cursormode == 1 && isarrow(press.keycode)) return walkcursor(game, press.keycode);
  commonkey(game, press);
}

void closesummary(Game& game) {
  hidesummary(game);
  playeffect(game, "/sounds/Menu/previous.wav");
  if (!game.missionunderway) return;
  if (game.cursormode == 1) {
    saytile(game, game.cursorx, game.cursory);
  } else {
    enteroptions(game);
  }
  endcheck(game);
}

void summarylabel_keydown(Game& game, KeyPress press) {
  if (press.keycode == key::ctrl) sayit(game, "");
  if (press.keycode == key::enter || press.keycode == key::escape) closesummary(game);
}

void handlekey(Game& game, KeyPress press) {
  if (game.focus != Focus::window && press.keycode == key::r) readpageagain(game);
  switch (game.focus) {
    case Focus::summarylabel: summarylabel_keydown(game, press); break;
    case Focus::storylabel: storylabel_keydown(game, press); break;
    case Focus::helplabel: helplabel_keydown(game, press); break;
    case Focus::window: windowkey(game, press); break;
  }
  assert(brokeninvariant(game).empty());
}

// Whatever goes wrong in a key's handler costs the rest of what that key would have done.
void handleguarded(Game& game, KeyPress press) {
  const int screenbefore = game.menuname;
  uncovermap(game);
  stopcues(game);
  try {
    handlekey(game, press);
  } catch (const std::exception& error) {
    logerror(game, "keypress", error.what());
  }
  if (game.menuname != screenbefore) drawscreen(game);
  if (game.focus != Focus::helplabel) setambience(game, ambienceof(game));  // it tries sounds out
}

}  // namespace

void handlewaitingkeys(Game& game) {
  game.keyhandlerbusy = true;
  while (!game.waitingkeys.empty() && !game.ended) {
    const KeyPress press = game.waitingkeys.front();
    game.waitingkeys.pop_front();
    game.trace.key(press.keycode, press.shift);
    handleguarded(game, press);
  }
  game.keyhandlerbusy = false;
}

void keypress(Game& game, KeyPress press) {
  if (game.ended) return;
  if (game.sendingkeys && isone(readingkeys, press.keycode)) return;
  game.firststart = false;
  speechengine(game).keypressed(game);
  game.waitingkeys.push_back(press);
  if (!game.keyhandlerbusy) handlewaitingkeys(game);
}

}  // namespace duskmarch
