#include "campaign/menus.h"

#include <algorithm>
#include <optional>
#include <string_view>

#include "audio/sounds.h"
#include "campaign/screens.h"
#include "shell/speech/keycodes.h"
#include "shell/speech/speech.h"

namespace duskmarch {
namespace {

struct MenuScreen {
  std::string_view title;
  int entries = 0;
  int escapeentry = 0;  // where Escape jumps to; 0: it does not
  void (*speak)(Game& game) = nullptr;
  void (*perform)(Game& game, int shift) = nullptr;
};

std::optional<MenuScreen> shownscreen(const Game& game) {
  switch (game.menuname) {
    case screen::mainmenu:
      return MenuScreen{"Main menu.", mainmenuentries, mainmenuentries, speakmainmenu,
                        performmainmenu};
    case screen::creation:
      return MenuScreen{"Create your character.", creationentries, creationentries, speakcreation,
                        performcreation};
    case screen::options:
      return MenuScreen{"Orders.", static_cast<int>(game.list2.size()), 0, speakoption,
                        performoption};
    case screen::upgrades:
      return MenuScreen{"Spend your points.", upgradeentries, upgradeentries, speakupgrade,
                        performupgrade};
    case screen::hideout:
      return MenuScreen{"The hideout.", hideoutentries, 0, speakhideout, performhideout};
    default: return std::nullopt;
  }
}

int within(int position, int entries, Ends ends) {
  if (position == 99) return entries;  // stands for the last entry, however many there are
  if (ends == Ends::open) return position;
  const bool wraps = ends == Ends::wrap;
  if (position <= 0) return wraps ? entries : 1;
  if (position > entries) return wraps ? 1 : entries;
  return position;
}

int stepof(int keycode) {
  switch (keycode) {
    case key::left:
    case key::up: return -1;
    case key::right:
    case key::down: return 1;
    default: return 0;
  }
}

}  // namespace

void cycleme(Game& game, int keycode, int entries, Ends ends) {
  if (const int step = stepof(keycode); step != 0) {
    game.menupos += step;
    playeffect(game, "/sounds/menu/arrows.wav");
  }
  game.menupos = within(game.menupos, entries, ends);
}

void menus(Game& game, KeyPress key) {
  if (key.keycode == key::enter) playeffect(game, "/sounds/menu/enter.wav");
  const std::optional<MenuScreen> shown = shownscreen(game);
  if (!shown) return;

  // The first Enter only reaches the first entry: nobody performs what they have not heard.
  if (key.keycode == key::enter && game.menupos == 0) key.keycode = key::right;
  cycleme(game, key.keycode, shown->entries, Ends::wrap);
  if (key.keycode == key::escape && shown->escapeentry != 0) game.menupos = shown->escapeentry;
  if (key.keycode == key::enter) {
    shown->perform(game, key.shift);
  } else {
    shown->speak(game);
  }
}

void gotoend(Game& game, bool last) {
  const std::optional<MenuScreen> shown = shownscreen(game);
  if (!shown) return;
  playeffect(game, "/sounds/menu/arrows.wav");
  game.menupos = last ? shown->entries : std::min(1, shown->entries);
  shown->speak(game);
}

void sayentry(Game& game) {
  const std::optional<MenuScreen> shown = shownscreen(game);
  if (!shown) return;
  if (game.menupos == 0) return sayit(game, shown->title);
  game.menupos = within(game.menupos, shown->entries, Ends::stop);
  shown->speak(game);
}

}  // namespace duskmarch
