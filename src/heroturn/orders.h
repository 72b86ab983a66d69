// What each order of a hero does: one function an order, called by dooption() through the order's
// row in heroturn/ordertable.h. By then the direction is asked for, whoever and whatever it needs
// is found, and what it costs is paid: a function changes what its rule says and logs one line.
#pragma once

#include "game.h"
#include "world/directions.h"

namespace duskmarch {

// An order being carried out.
struct Deed {
  Game& game;
  Mob& hero;            // who carries it out
  Mob& other;           // whom it is used upon; slot 0, nobody, for an order upon nobody
  Item& item;           // the furniture it takes; slot 0, nothing, for an order without
  Direction direction;  // where it goes, for an order that asks for one
};

namespace order {

void move(const Deed& deed);
void dive(const Deed& deed);
void hook(const Deed& deed);

void target(const Deed& deed);
void targetnobody(const Deed& deed);
void combo(const Deed& deed);
void headbutt(const Deed& deed);
void kick(const Deed& deed);
void dust(const Deed& deed);

void blast(const Deed& deed);
void bolas(const Deed& deed);
void net(const Deed& deed);
void pin(const Deed& deed);
void grapnel(const Deed& deed);
void heal(const Deed& deed);
void shield(const Deed& deed);
void smokebombs(const Deed& deed);
void secondwind(const Deed& deed);

void fliptable(const Deed& deed);
void throwtable(const Deed& deed);
void throwchair(const Deed& deed);
void throwperson(const Deed& deed);

}  // namespace order

}  // namespace duskmarch
