// The test mission: two ready-made heroes raid the pool hall against twelve.
#include "missions/poolhall.h"

namespace duskmarch {

namespace {

// clang-format off
constexpr std::array steelwingsabilities = {
    AbilityUses{.ability = "Throw", .uses = 6},
    AbilityUses{.ability = "Kick", .uses = 4},
    AbilityUses{.ability = "Blast", .uses = 6},
    AbilityUses{.ability = "Headbutt", .uses = 2},
    AbilityUses{.ability = "Grapnel", .uses = 2},
    AbilityUses{.ability = "Shield", .uses = 4},
    AbilityUses{.ability = "Heal", .uses = 2},
    AbilityUses{.ability = "Second wind", .uses = 1},
    AbilityUses{.ability = "Combo", .uses = 3},
    AbilityUses{.ability = "Net", .uses = 1},
};

constexpr std::array heroes = {
    ReadyHero{.name = "Nightjar", .gender = gender::male, .health = 25,
              .x = 2, .y = 5, .fight = 7, .gun = 0, .reserve = 2,
              .abilities = poolhall::everytrick},
    ReadyHero{.name = "Steelwing", .gender = gender::male, .health = 40,
              .x = 2, .y = 5, .fight = 5, .gun = 10, .reserve = 2,
              .abilities = steelwingsabilities},
};

constexpr std::array enemies = {
    Enemy{.mob = {.name = "Mobster Tony", .gender = "M", .type = mobtype::ordinary, .health = 16,
                  .x = 2, .y = 2, .fight = 4}},
    Enemy{.mob = {.name = "Biker Chick", .gender = "F", .type = mobtype::ordinary, .health = 16,
                  .x = 1, .y = 2, .fight = 3}},
    Enemy{.mob = {.name = "Mobster Frankie", .gender = "M", .type = mobtype::gunman, .health = 16,
                  .x = 4, .y = 4, .fight = 4, .gun = 6, .action = tag::loaded}},
    Enemy{.mob = {.name = "Henchman Albert", .gender = "M", .type = mobtype::gunman, .health = 16,
                  .x = 5, .y = 5, .fight = 4, .gun = 6}},
    Enemy{.mob = {.name = "Henchman Joe", .gender = "M", .type = mobtype::ordinary, .health = 16,
                  .x = 1, .y = 4, .fight = 5}},
    Enemy{.mob = {.name = "Gunman Moe", .gender = "M", .type = mobtype::gunman, .health = 16,
                  .x = 2, .y = 5, .fight = 4, .gun = 6, .action = tag::loaded, .spawntime = 4,
                  .spawntext = "$N wanders in, surprised to see the chaos."}},
    Enemy{.mob = {.name = "Gunman Vicky", .gender = "F", .type = mobtype::gunman, .health = 16,
                  .x = 2, .y = 5, .fight = 4, .gun = 6, .spawntime = 3,
                  .spawntext = "$N rushes in to help defend her boss."}},
    Enemy{.mob = {.name = "Bruiser", .gender = "M", .type = mobtype::gifted, .health = 30,
                  .x = 2, .y = 2, .fight = 6},
          .abilities = poolhall::everytrick},
    Enemy{.mob = {.name = "Muscles", .gender = "M", .type = mobtype::gifted, .health = 30,
                  .x = 2, .y = 1, .fight = 6},
          .abilities = poolhall::everytrick},
    Enemy{.mob = {.name = "Shane", .gender = "M", .type = mobtype::gifted, .health = 30,
                  .x = 5, .y = 1, .fight = 6, .spawntime = 6,
                  .spawntext = "$N bursts in through the back door.  "},
          .abilities = poolhall::everytrick},
    Enemy{.mob = {.name = "Mobster Al", .gender = "M", .type = mobtype::gunman, .health = 16,
                  .x = 5, .y = 1, .fight = 4, .gun = 6, .spawntime = 7,
                  .spawntext = "Follows Shane in from the alley.  "}},
    Enemy{.mob = {.name = "Mobster Tito", .gender = "M", .type = mobtype::ordinary, .health = 16,
                  .x = 5, .y = 1, .fight = 5, .spawntime = 7,
                  .spawntext = "Follows Shane in from the alley.  "}},
};
// clang-format on

constexpr std::array<std::string_view, 1> startpage = {
    "$A and $B storm into a pool hall, where several key figures in the mob have gathered.  Take "
    "them down.  Press Escape to continue.",
};

constexpr std::array<std::string_view, 3> endpage = {
    "This testing mission has no exit story.",

    "Umm, to write one real quick lets just assume $A and $B tie up the bad guys and chat with one "
    "of the more influential ones who has woken up.",

    "Yeah I guess that story works, just so there is something.  Mission complete.  Press Escape "
    "to continue.",
};

}  // namespace

extern constinit const Mission mission0 = {
    .number = 0,
    .objective = "Invade the mobster meeting at the pool hall.",
    .ambience = "pool-hall",
    .readyheroes = heroes,
    .start = {.paragraphs = startpage},
    .mapwidth = poolhall::mapwidth,
    .mapheight = poolhall::mapheight,
    .furniture = poolhall::furniture,
    .enemies = enemies,
    .ending = Ending{.page = {.paragraphs = endpage}, .says = "Victory."},
};

}  // namespace duskmarch
