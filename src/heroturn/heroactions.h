// The options of the selected hero, one function each. dooption() finds who is meant and sets the
// hero's `target` to the one mob that an option is used upon; a function then changes what its
// rule says and logs one line.
#pragma once

#include <string_view>

#include "game.h"
#include "world/directions.h"

namespace duskmarch {

// Takes the hero's action of this turn, and one use of the ability.
void spendaction(Game& game, Mob& hero, std::string_view ability);
// Somebody was knocked out by the selected mob: a hero earns a point for it.
void creditknockout(Mob& hero);

namespace option {

void move(Game& game, Mob& hero, const Direction& direction);
void dive(Game& game, Mob& hero, const Direction& direction);
void hook(Game& game, Mob& hero, const Direction& direction);

// Everyone of that name is targeted in turn, so the last one stays the target.
void target(Game& game, Mob& hero, std::string_view name);
void targetnobody(Game& game, Mob& hero);
void combo(Game& game, Mob& hero, Mob& foe);
void headbutt(Game& game, Mob& hero, Mob& foe);
void kick(Game& game, Mob& hero, Mob& foe);
// Everyone of that name gets sand in the eyes.
void dust(Game& game, Mob& hero, std::string_view name);

void blast(Game& game, Mob& hero, Mob& foe);
void bolas(Game& game, Mob& hero, Mob& foe);
void net(Game& game, Mob& hero, Mob& foe);
void pin(Game& game, Mob& hero, Mob& foe);
void grapnel(Game& game, Mob& hero, Mob& foe);
void heal(Game& game, Mob& hero, Mob& ally);
bool lackshealth(const Mob& mob);
void shield(Game& game, Mob& hero);
void smokebombs(Game& game, Mob& hero);
void secondwind(Game& game, Mob& hero);

// Without a table or chair on the hero's tile these do nothing.
void fliptable(Game& game, Mob& hero);
void throwtable(Game& game, Mob& hero, const Direction& direction);
void throwchair(Game& game, Mob& hero, const Direction& direction);
// `throwing` is the name of a mob and, after a space, the word of a direction.
void throwperson(Game& game, Mob& hero, std::string_view throwing);

}  // namespace option

}  // namespace duskmarch
