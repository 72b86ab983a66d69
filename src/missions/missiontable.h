// What a mission is made of. A mission's file fills one such table and holds no logic; the frame
// plays it.
#pragma once

#include <optional>
#include <span>
#include <string_view>

#include "heroturn/ordertable.h"
#include "world/tables.h"

namespace duskmarch {

struct AbilityUses {
  AbilityName ability;
  int uses = 0;
};

struct Enemy {
  NewMob mob = {};
  std::span<const AbilityUses> abilities = {};
};

struct Furniture {
  std::string_view name;  // "Table" or "Chair"
  int x = 0;
  int y = 0;
  int health = 1;
};

// A hero that the mission brings along, in the slot of its row; the campaign's own make way.
struct ReadyHero {
  std::string_view name;
  int gender = 0;
  int health = 0;
  int x = 0;
  int y = 0;
  int fight = 0;
  int gun = 0;
  int reserve = 0;  // all three reserves
  std::span<const AbilityUses> abilities = {};
};

// Where a hero of the campaign starts.
struct Placement {
  int hero = 0;
  int x = 0;
  int y = 0;
};

// A story page. The paragraphs may hold placeholders.
struct Story {
  std::span<const std::string_view> paragraphs;
  bool breakafterlast = true;  // an empty line follows the last paragraph too
};

struct Ending {
  Story page;
  std::string_view says;
  int bonuspoints = 0;  // for hero 1
  bool saves = false;
};

struct Mission {
  int number = 0;
  std::string_view objective;
  std::string_view ambience = {};  // the loop of its place, in the table of audio/cuetable.h
  std::span<const ReadyHero> readyheroes = {};  // any of these: the enemies follow right after
  Story start;
  std::span<const Placement> placements = {};
  int mapwidth = 0;
  int mapheight = 0;
  std::span<const Furniture> furniture = {};
  std::span<const Enemy> enemies = {};
  std::optional<Ending> ending = {};  // without one the hideout follows a victory at once
};

}  // namespace duskmarch
