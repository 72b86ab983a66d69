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
// Performs the entry that enemy `t` chose, and empties its action.
void doenemyoption(Game& game, int t, const std::string& entry);

}  // namespace duskmarch
