// The dock, where for now the fight at the pool hall is fought again.
#include "missions/poolhall.h"

namespace duskmarch {

namespace {

constexpr std::array placements = {
    Placement{.hero = 1, .x = 3, .y = 1},
    Placement{.hero = 2, .x = 5, .y = 3},
};

constexpr std::array<std::string_view, 8> startpage = {
    "I don't have a mission 3 yet.  For now it's just mission 2 again, and if you beat it the game "
    "probably just crashes, haha.",
    "",
    "",
    "",
    "",
    "",
    "",
    ".  Press Escape to continue.",
};

}  // namespace

extern constinit const Mission mission3 = {
    .number = 3,
    .objective = "Intercept the shipment at the dock.",
    .ambience = "dock",
    .start = {.paragraphs = startpage, .breakafterlast = false},
    .placements = placements,
    .mapwidth = poolhall::mapwidth,
    .mapheight = poolhall::mapheight,
    .furniture = poolhall::furniture,
    .enemies = poolhall::mobsters,
};

}  // namespace duskmarch
