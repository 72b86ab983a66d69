// What enemies do by themselves.
#pragma once

#include <string>

#include "game.h"

namespace duskmarch {

// Sets enemy `e`'s target to the nearest conscious hero, by the toss of a coin among equals; to 0
// when there is none.
void pickatarget(Game& game, int e);
// Fills `list3` with what enemy `t` may choose to do.
void listenemyoptions(Game& game, int t);
// The part of that which its abilities allow: adds the entries to `list3`.
void listentries(Game& game, int t);
// Performs the entry that enemy `t` chose, and empties its action. The entry may be that action.
void doenemyoption(Game& game, int t, const std::string& entry);

// Enemy `x`'s walk and its plan for the coming turn; returns its report.
std::string walkandplan(Game& game, int x);

}  // namespace duskmarch
