// What each spoken menu does with the entry at `menupos`: speak it, or perform it on Enter (`shift`
// holds the modifiers).
#pragma once

#include "game.h"
#include "heroturn/ordertable.h"

namespace duskmarch {

inline constexpr int mainmenuentries = 4;
inline constexpr int creationentries = 6;
inline constexpr int upgradeentries =
    2 + learnableabilities + 1;                       // health, fighting skill; the way out
inline constexpr int hideoutentries = heroslots + 1;  // the next mission

void speakmainmenu(Game& game);
void performmainmenu(Game& game, int shift);

void speakcreation(Game& game);
void performcreation(Game& game, int shift);

// The option list of the selected hero.
void speakoption(Game& game);
void performoption(Game& game, int shift);

void speakupgrade(Game& game);
void performupgrade(Game& game, int shift);

void speakhideout(Game& game);
void performhideout(Game& game, int shift);

// Shows another screen, no entry of it reached yet.
inline void enterscreen(Game& game, int menuname) {
  game.menuname = menuname;
  game.menupos = 0;
}

}  // namespace duskmarch
