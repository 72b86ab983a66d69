// The pool hall, where several missions are fought, and the mobsters whom the campaign meets there.
#pragma once

#include <array>

#include "missions/missiontable.h"
#include "resolution/tags.h"

namespace duskmarch::poolhall {

inline constexpr int mapwidth = 5;
inline constexpr int mapheight = 5;

// clang-format off
inline constexpr std::array furniture = {
    Furniture{.name = "Table", .x = 2, .y = 2},
    Furniture{.name = "Table", .x = 4, .y = 3},
    Furniture{.name = "Chair", .x = 2, .y = 1},
    Furniture{.name = "Chair", .x = 2, .y = 2},
    Furniture{.name = "Chair", .x = 3, .y = 3},
    Furniture{.name = "Chair", .x = 4, .y = 3},
    Furniture{.name = "Table", .x = 1, .y = 4},
    Furniture{.name = "Table", .x = 5, .y = 2},
    Furniture{.name = "Chair", .x = 5, .y = 3},
};

// What the best fighters know: Nightjar, and the worst of those whom they meet here.
inline constexpr std::array everytrick = {
    AbilityUses{.ability = "Dive", .uses = 4},
    AbilityUses{.ability = "Hook", .uses = 2},
    AbilityUses{.ability = "Throw", .uses = 3},
    AbilityUses{.ability = "Dust", .uses = 1},
    AbilityUses{.ability = "Kick", .uses = 4},
    AbilityUses{.ability = "Smoke bombs", .uses = 1},
    AbilityUses{.ability = "Pin", .uses = 3},
    AbilityUses{.ability = "Headbutt", .uses = 2},
    AbilityUses{.ability = "Second wind", .uses = 1},
    AbilityUses{.ability = "Combo", .uses = 3},
    AbilityUses{.ability = "Bolas", .uses = 2},
};

inline constexpr std::array mobsters = {
    Enemy{.mob = {.name = "Mobster Tony", .gender = "M", .type = mobtype::ordinary, .health = 8,
                  .x = 2, .y = 2, .fight = 3}},
    Enemy{.mob = {.name = "Mobster Frankie", .gender = "M", .type = mobtype::gunman, .health = 8,
                  .x = 4, .y = 4, .fight = 3, .gun = 6, .action = tag::loaded}},
    Enemy{.mob = {.name = "Mobster Albert", .gender = "M", .type = mobtype::gunman, .health = 8,
                  .x = 5, .y = 5, .fight = 3, .gun = 6}},
    Enemy{.mob = {.name = "Muscles", .gender = "M", .type = mobtype::gifted, .health = 12,
                  .x = 2, .y = 1, .fight = 4},
          .abilities = everytrick},
    Enemy{.mob = {.name = "Mobster Al", .gender = "M", .type = mobtype::gunman, .health = 8,
                  .x = 5, .y = 1, .fight = 3, .gun = 6, .spawntime = 7,
                  .spawntext = "$N parks outside, and rushes in after seeing unconscious guards "
                               "outside.  "}},
    Enemy{.mob = {.name = "Mobster Tito", .gender = "M", .type = mobtype::ordinary, .health = 8,
                  .x = 5, .y = 1, .fight = 3, .spawntime = 7,
                  .spawntext = "$N follows his driver Al in from outside.  "}},
};
// clang-format on

}  // namespace duskmarch::poolhall
