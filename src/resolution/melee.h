// Hand-to-hand fighting. Nothing here involves chance.
#pragma once

#include <span>
#include <string>

#include "game.h"
#include "values/hundredths.h"

namespace duskmarch {

struct FightValues {
  Hundredths attacker;
  Hundredths defender;
};

// The effective fighting values of mob `z` and of its target, which must be a conscious mob.
FightValues calcfight(const Game& game, int z);

// Whether a mob that plans to fight has its target within reach: else its fight is called off.
bool canfight(const Game& game, const Mob& mob);

// Recomputes whether a mob is held in a fight: some conscious, unhindered opponent with fighting
// points left on its tile has planned to fight.
void engagedcheck(Game& game, int slot);
// The same, asking nobody but `opponents`: the slots of all who are on another side than the mob.
void engagedcheck(Game& game, int slot, std::span<const int> opponents);

// What two fighting values do to each other: the stronger deals damage, whoever attacked in vain or
// won tires, and a knockout earns an attacking hero a point. Returns the words that tell of it.
std::string exchangeblows(Game& game, Mob& attacker, Mob& defender, const FightValues& values);

// One exchange of blows between mob `x` and its target at the end of turn; returns its report.
std::string meleeexchange(Game& game, int x);

// Everyone who rested regains a fighting point, each told in a line of its own.
void regainfightingpoints(Game& game);

}  // namespace duskmarch
