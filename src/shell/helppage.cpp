#include "shell/helppage.h"

#include <array>
#include <string>
#include <string_view>
#include <utility>

#include "audio/soundlist.h"
#include "audio/sounds.h"
#include "campaign/menus.h"
#include "shell/speech/keycodes.h"
#include "shell/speech/pages.h"
#include "shell/speech/speech.h"
#include "world/mapspeech.h"
#include "world/narration.h"

namespace duskmarch {

namespace {

// By `menuname`: where one is, and what to do there.
constexpr std::array<std::string_view, 6> openings = {
    "Help for the map.  Letters go from west to east, numbers from north to south.  Each turn "
    "every hero may move once and act once.  Explore with the arrows, walk with Enter, fight by "
    "the orders behind Space, ask D for danger, and end the turn with Shift+E.  The summary that "
    "follows closes with Enter.",
    "Help for the main menu.  Start new game leads to your hideout.",
    "Help for creating a vigilante.  Enter changes what you hear; the last entry finishes.",
    "Help for orders.  These are what the selected hero can do now.  An order acts at once; the "
    "blows of Target are exchanged when you end your turn with Shift+E.  Whoever has the higher "
    "fighting skill then hurts the other, and tires.  Friends on the tile raise a skill, and being "
    "dazed lowers it.",
    "Help for upgrades.  Each entry tells what it costs.",
    "Help for the hideout.  The first three entries are your vigilantes.  Enter recruits one, or "
    "leads to the upgrades of one that you have.  The fourth begins the mission.",
};

constexpr std::string_view ofpages =
    "Keys on pages like this one:\r\n"
    "Up, Down: read line by line.\r\n"
    "Left, Right: read letter by letter.\r\n"
    "Home, End: to the ends of the line.\r\n"
    "Page Up, Page Down: a screen up or down.\r\n"
    "R: say again what you heard last, where the game reads to you.\r\n"
    "Ctrl: silence.\r\n"
    "Escape: close the page.  Enter closes the turn summary as well.\r\n";

void saywhereitis(Game& game) {
  if (game.menuname == screen::map) return saytile(game, game.cursorx, game.cursory);
  sayentry(game);
}

void closehelp(Game& game) {
  game.soundlisted = -1;
  hidehelp(game);
  playeffect(game, "/sounds/Menu/previous.wav");
  saywhereitis(game);
}

std::string helptext(const Game& game, std::span<const PlayerKey> keys) {
  const unsigned here = 1U << static_cast<unsigned>(game.menuname);
  std::string text(openings.at(static_cast<std::size_t>(game.menuname)));
  text += "\r\n";
  for (const PlayerKey& row : keys) {
    if ((row.told & here) != 0) text += sentence({row.keys, ": ", row.does, ".\r\n"});
  }
  return text.append(ofpages);
}

void open(Game& game, std::string_view name, std::string text) {
  game.helplabel = std::move(text);
  showhelp(game, name);
  sayit(game, "");
  focushelp(game);
  game.desktop.window.processevents();
}

}  // namespace

void openhelp(Game& game, std::span<const PlayerKey> keys) {
  open(game, "Help", helptext(game, keys));
}

void opensounds(Game& game) {
  open(game, "Sounds", soundlist());
  game.soundlisted = 0;
}

void helplabel_keydown(Game& game, KeyPress press) {
  if (press.keycode == key::ctrl) sayit(game, "");
  if (press.keycode == key::f7) playsoundline(game);
  if (press.keycode == key::escape) closehelp(game);
}

}  // namespace duskmarch
