#include "missions/missions.h"

#include <algorithm>
#include <span>
#include <string>
#include <string_view>

#include "audio/cues.h"
#include "audio/sounds.h"
#include "campaign/savegame.h"
#include "heroturn/optionlist.h"
#include "missions/missionlist.h"
#include "shell/speech/keycodes.h"
#include "shell/speech/pages.h"
#include "shell/speech/speech.h"
#include "world/narration.h"
#include "world/whostands.h"

namespace duskmarch {

namespace {

// The test mission leaves its first enemy in a hero's slot.
void expelenemies(Game& game) {
  for (int slot = 1; slot <= heroslots; ++slot) {
    if (game.mob(slot).aliance == aliance::enemies) emptyheroslot(game.mob(slot));
  }
}

void rememberuses(Mob& mob) {
  for (int k = 1; k <= mob.abilitycount; ++k) {
    Ability& ability = mob.abilities[static_cast<std::size_t>(k)];
    ability.abilityextra = ability.abilityuses;
  }
}

void giveusesback(Mob& mob) {
  for (int k = 1; k <= mob.abilitycount; ++k) {
    Ability& ability = mob.abilities[static_cast<std::size_t>(k)];
    ability.abilityuses = ability.abilityextra;
  }
}

void bringtogether(Game& game) {
  game.mobcount = heroslots;
  for (int slot = 1; slot <= heroslots; ++slot) {
    Mob& hero = game.mob(slot);
    hero.health = hero.maxhealth;
    hero.fight = hero.maxfight;
    rememberuses(hero);
  }
  for (int slot = 1; slot <= lastslot; ++slot) {
    game.mob(slot).status.clear();
    game.mob(slot).action.clear();
  }
}

void teach(Game& game, int slot, std::span<const AbilityUses> abilities) {
  game.mob(slot).abilitycount = 0;
  for (const auto& [ability, uses] : abilities) give(game, slot, ability, uses);
}

void bring(Game& game, const ReadyHero& ready) {
  game.mobcount += 1;
  Mob& hero = game.mob(game.mobcount);
  hero.mobname = ready.name;
  hero.gender = ready.gender;
  hero.aliance = aliance::heroes;
  hero.mobtype = mobtype::hero;
  hero.maxhealth = hero.health = ready.health;
  hero.mobx = hero.startx = ready.x;
  hero.moby = hero.starty = ready.y;
  hero.maxreserve = hero.reserve = hero.reserve2 = ready.reserve;
  hero.maxfight = hero.fight = ready.fight;
  hero.gun = ready.gun;
  teach(game, game.mobcount, ready.abilities);
  rememberuses(hero);
}

void showpage(Game& game, const Story& page, std::string_view says) {
  game.storylabel.clear();
  for (const std::string_view& paragraph : page.paragraphs) {
    game.storylabel += translate(game, paragraph);
    const bool last = &paragraph == &page.paragraphs.back();
    if (!last || page.breakafterlast) game.storylabel += "\r\n\r\n";
  }
  showstory(game);
  sayit(game, says);
  focusstory(game);
  game.desktop.window.processevents();
}

void layout(Game& game, const Mission& mission) {
  for (const auto& [hero, x, y] : mission.placements) {
    game.mob(hero).mobx = x;
    game.mob(hero).moby = y;
  }
  game.cursorx = game.mob(1).mobx;
  game.cursory = game.mob(1).moby;
  game.mapwidth = mission.mapwidth;
  game.mapheight = mission.mapheight;
  game.itemcount = 0;
  for (const auto& [name, x, y, health] : mission.furniture) newitem(game, name, x, y, health);
  for (const Enemy& enemy : mission.enemies) {
    const int slot = newmob(game, enemy.mob);
    if (!enemy.abilities.empty()) teach(game, slot, enemy.abilities);
  }
}

void setup(Game& game, const Mission& mission) {
  game.objective = mission.objective;
  // The log puts every later line above this one.
  game.summarylabel.lines = {
      sentence({"-Mission ", std::to_string(mission.number), " begins: ", mission.objective})};
  if (!mission.readyheroes.empty()) {
    game.mobcount = 0;
    game.testheroes = true;
  }
  for (const ReadyHero& hero : mission.readyheroes) bring(game, hero);
  showpage(game, mission.start, "");
  layout(game, mission);
}

// Whether somebody of a side still stands, or is yet to arrive.
bool remains(const Game& game, int side) {
  return std::ranges::any_of(everyone(game), [&](const Mob& mob) {
    return mob.aliance == side && (conscious(mob) || tocome(game, mob));
  });
}

// From here on closing the summary once more decides nothing.
void announce(Game& game, std::string_view title, std::string_view text) {
  game.missionunderway = false;
  sayit(game, "");
  messagebox(game, title, text);
}

void finish(Game& game, const Ending& ending) {
  showpage(game, ending.page, ending.says);
  if (ending.bonuspoints != 0) game.mob(1).earnedpoints += ending.bonuspoints;
  if (ending.saves) savegame(game, "game.sav");
  keepprogress(game);
}

void win(Game& game) {
  playcue(game, cue::victory);
  announce(game, "Victory", "Mission complete!");
  for (Mob& mob : everyone(game)) {
    // Earned points are paid out again at every victory.
    if (mob.aliance == aliance::heroes) mob.upgradepoints += mob.earnedpoints;
    giveusesback(mob);
  }
  game.cursormode = 0;
  game.menuname = screen::hideout;
  game.menupos = 0;
  game.missionunwon = false;
  const Mission* const mission = findmission(game.missionnumber);
  if (mission != nullptr && mission->ending) return finish(game, *mission->ending);
  keepprogress(game);
  sayit(game, "Back at the hideout.");
}

void lose(Game& game) {
  playcue(game, cue::defeat);
  announce(game, "Defeat", "Mission failed!");
  game.menuname = screen::mainmenu;
  game.menupos = 0;
  sayit(game, game.waybackkept
                  ? "Main menu.  Press F8 to go back to the hideout as it was before this mission."
                  : "Main menu.");
}

}  // namespace

void startusout(Game& game) {
  game.missionunderway = true;
  game.cursormode = 1;
  game.turnnumber = 0;
  expelenemies(game);
  bringtogether(game);
  if (const Mission* const mission = findmission(game.missionnumber); mission != nullptr) {
    setup(game, *mission);
  } else {
    sayit(game,
          sentence({"Mission ", std::to_string(game.missionnumber), " has not been written yet."}));
  }
  listoptions(game, 0);
}

void endcheck(Game& game) {
  if (!remains(game, aliance::enemies)) return win(game);
  if (!remains(game, aliance::heroes)) lose(game);
}

std::string_view ambienceof(const Game& game) {
  const bool fighting =
      game.missionunderway && (game.menuname == screen::map || game.menuname == screen::options);
  if (!fighting) return "menus-and-hideout";
  const Mission* const mission = findmission(game.missionnumber);
  return mission == nullptr ? std::string_view() : mission->ambience;
}

void storylabel_keydown(Game& game, KeyPress key) {
  if (key.keycode == key::ctrl) sayit(game, "");
  if (key.keycode != key::escape) return;
  hidestory(game);
  playeffect(game, "/sounds/Menu/previous.wav");
  if (game.menuname == screen::hideout) sayit(game, "Back at the hideout.");
  if (game.menuname == screen::map) playcue(game, cue::heroesturn);
}

}  // namespace duskmarch
