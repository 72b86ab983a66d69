// A fight written down in one line, to arrange it and to compare what became of it.
//
// "Vesper 2,3 20 4" is a name, a place, health and skill; then conditions, plans and "gun" for a
// gunman: "Tony 2,1 16 3 gun [Dazed][Netted] plans[Loaded]". In slot order, parted by " | ", the
// furniture last: "Table 2,3 1". Heroes are Vesper, Nora and Bly, of a full health of 20; everyone
// else is an enemy whose target is slot 1. Vesper and Vicky are women.
// Also understood are "moved", "acted", "engaged", "t2" (another target), "leads" (a gifted enemy)
// and "comes2" (his turn of coming), and in plans "_" stands for a space; and what became of it
// tells "p1" (points earned), "busy" (not rested) and "used" for an act that took a use of an
// ability.
#pragma once

#include <algorithm>
#include <sstream>
#include <stdexcept>
#include <string>

#include "world/tables.h"

namespace duskmarch {

inline void arrangeword(Mob& mob, const std::string& word) {
  if (word == "moved") {
    mob.hasmoved = 1;
  } else if (word == "acted") {
    mob.hasacted = 1;
  } else if (word == "engaged") {
    mob.engaged = 1;
  } else if (word == "gun") {
    mob.mobtype = mobtype::gunman;
  } else if (word == "leads") {
    mob.mobtype = mobtype::gifted;
  } else if (word.starts_with("comes")) {
    mob.spawntime = std::stoi(word.substr(5));
  } else if (word.starts_with("[")) {
    mob.status = word;
  } else if (word.starts_with("plans[")) {
    mob.action = word.substr(5);
    std::ranges::replace(mob.action, '_', ' ');
  } else if (word.starts_with("t") && word.size() == 2) {
    mob.target = std::stoi(word.substr(1));
  } else {
    throw std::invalid_argument("no such word in a fight: " + word);
  }
}

inline void arrangemob(Game& game, const std::string& name, std::istringstream& words) {
  const bool hero = name == "Vesper" || name == "Nora" || name == "Bly";
  Mob& mob = game.mob(newmob(game, {.name = name}));
  mob.gender = name == "Vesper" || name == "Vicky" ? gender::female : gender::male;
  mob.aliance = hero ? aliance::heroes : aliance::enemies;
  mob.mobtype = hero ? mobtype::hero : mobtype::ordinary;
  mob.target = hero ? 0 : 1;
  mob.rested = 1;
  int x = 0, y = 0, health = 0, fight = 0;
  char comma = ',';
  words >> x >> comma >> y >> health >> fight;
  mob.mobx = x;
  mob.moby = y;
  mob.health = health;
  mob.maxhealth = hero ? 20 : health;
  mob.fight = fight;
  if (!words) throw std::invalid_argument("no place, health and skill: " + name);
  for (std::string word; words >> word;) arrangeword(mob, word);
}

// On a map of 4 by 3 tiles.
inline void arrange(Game& game, const std::string& ground) {
  game.mapwidth = 4;
  game.mapheight = 3;
  std::istringstream parts(ground);
  for (std::string part; std::getline(parts, part, '|');) {
    std::istringstream words(part);
    std::string name;
    words >> name;
    if (name != "Table" && name != "Chair") {
      arrangemob(game, name, words);
      continue;
    }
    int x = 0, y = 0, health = 0;
    char comma = ',';
    if (!(words >> x >> comma >> y >> health) || words >> name) {
      throw std::invalid_argument("no place and health alone: " + part);
    }
    newitem(game, name, x, y, health);
  }
}

// The same, for an order of Vesper's: she is in slot 1 and acts, with a full skill of 4, a gun of
// 5, and one use of the ability.
inline void arrangefor(Game& game, const std::string& ground, const std::string& option) {
  arrange(game, ground);
  game.mob(1).maxfight = 4;
  game.mob(1).gun = 5;
  give(game, 1, option.substr(0, option.find(' ')), 1);
  if (option.find(' ') != std::string::npos) give(game, 1, option, 1);
}

// "Move (N)": an option, and what is answered to its question for a direction.
struct AnsweredOption {
  std::string option;
  std::string answer;
};

inline AnsweredOption readorder(const std::string& what) {
  const auto bracket = what.find(" (");
  if (bracket == std::string::npos) return {what, ""};
  return {what.substr(0, bracket), what.substr(bracket + 2, 1)};
}

inline std::string described(const Mob& mob) {
  std::ostringstream text;
  text << mob.mobname << " " << mob.mobx << "," << mob.moby << " " << mob.health << " "
       << mob.fight;
  if (mob.mobtype == mobtype::gunman) text << " gun";
  if (mob.target != (mob.aliance == aliance::heroes ? 0 : 1)) text << " t" << mob.target;
  if (mob.earnedpoints != 0) text << " p" << mob.earnedpoints;
  int left = 0;
  for (const Ability& ability : mob.abilities) left += ability.abilityuses;
  if (mob.hasmoved == 1) text << " moved";
  if (mob.hasacted == 1) text << (left < mob.abilitycount ? " used" : " acted");
  if (mob.rested == 0) text << " busy";
  if (!mob.status.empty()) text << " " << mob.status;
  if (!mob.action.empty()) text << " plans" << mob.action;
  return text.str();
}

inline std::string described(const Game& game) {
  std::ostringstream text;
  for (int slot = 1; slot <= game.mobcount; ++slot) {
    text << (slot > 1 ? " | " : "") << described(game.mob(slot));
  }
  for (int slot = 1; slot <= game.itemcount; ++slot) {
    const Item& item = game.item(slot);
    text << " | " << item.itemname << " " << item.itemx << "," << item.itemy << " "
         << item.itemhealth;
  }
  return text.str();
}

}  // namespace duskmarch
