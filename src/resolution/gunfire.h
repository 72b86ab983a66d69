// Guns at the end of turn: loading, aiming and firing.
#pragma once

#include <string>
#include <utility>

#include "game.h"

namespace duskmarch {

// The column and row that the shooting tag at the end of `action` aims at; 0 for what is no number.
std::pair<int, int> shootingtarget(const std::string& action);

// Each does one step of a gunman's work and returns its report.
std::string load(Game& game, Mob& gunman);
std::string aim(Game& game, Mob& gunman);
std::string volley(Game& game, Mob& gunman);

}  // namespace duskmarch
