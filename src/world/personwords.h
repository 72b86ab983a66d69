// A person in words: what body and conditions are like right now.
#pragma once

#include <string>
#include <string_view>

#include "game.h"

namespace duskmarch {

// " + 0.75", what company adds to a mob's fighting skill on its tile; empty where it adds nothing.
std::string skillbonus(const Game& game, int slot);
// "6 of 8 health, fighting skill 3 of 4 + 1".
std::string bodywords(const Game& game, int slot);
// The conditions with the turns that are left of them, such as "dazed for 1 more turn", each
// before it `opening` and after it `closing`.
std::string conditionwords(const Mob& mob, std::string_view opening, std::string_view closing);
// "Combo 1, Kick 2": the abilities of which uses are left; empty when there are none.
std::string abilitywords(const Mob& mob);
// "1 turn", "2 turns".
std::string counted(int count, std::string_view thing);
// With a capital letter, as at the beginning of a sentence.
std::string capitalized(std::string text);

}  // namespace duskmarch
