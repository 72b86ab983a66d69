// The raid on the pool hall.
#include "missions/poolhall.h"

namespace duskmarch {

namespace {

constexpr std::array placements = {
    Placement{.hero = 1, .x = 3, .y = 1},
};

constexpr std::array<std::string_view, 6> startpage = {
    "Deep in the hideout, in a room without windows, $A sits among a hundred small radios.  Each "
    "of them is fed by a listening device hidden somewhere in the city, under a desk, behind a "
    "bar, inside a public phone.  For hours they have whispered to $AHIM about nothing that "
    "matters.  Then, at last, one of them says something important.",

    "Dosavic, the boss of the mob, has called a meeting at a pool hall on the west edge of "
    "town.  For weeks the mob has been quiet.  No robberies, no fires, not even a broken "
    "window.  Men like Dosavic only keep this quiet when something big is coming.  It is time "
    "for a closer look.",

    "From a dark balcony across the street $A watches the fancy cars roll up, one after "
    "another.  A dozen people in suits climb out and hurry inside.  Then come the guards, two at "
    "the door, two at the corner, more around the back.  With every minute security grows "
    "tighter, and soon there will be too many of them for $AHIM to handle alone.",

    "There is no time to think of anything better.  To learn what this meeting is about, and to "
    "get out again before more of them arrive, $A must act now.  Without a sound $AHE swings "
    "over the railing and drops to the street.",

    "Inside, the mobsters wait around a table, and nobody touches the cards.  A clock ticks on "
    "the wall.  Outside, a bottle breaks.  Heads turn.  There is a thump, heavy and muffled, "
    "then another one, and then nothing at all.  Slowly, hands slide into jackets and reach for "
    "pistols.",

    "The door flies open, and one of the guards comes through it backwards.  He crashes to the "
    "floor and slides to a stop against the table.  Behind him, out of the dark, $A steps "
    "inside.  Press Escape to continue.",
};

constexpr std::array<std::string_view, 7> endpage = {
    "A hard slap wakes Albert.  The whole world is upside down.  A rope bites into his ankles, "
    "and he is hanging head down from a drainage pipe, not far from where the fight took place.  "
    "Cold water runs along his jacket and into his eyes.",

    "\"What are you,\" the mobster begins, and his voice shakes so badly that he has to start "
    "again.  \"What are you going to do to me?\"",

    "Back at the hideout, $A cleans a pair of old pliers under the tap.  A shipment of valuable "
    "goods will arrive at the dock in three days.  To Dosavic nothing else is more important, "
    "and the dock workers have been paid to stay away.",

    "Albert held out longer than $A expected.  It was a hard interrogation, and the details came "
    "out one by one, the day, the dock, the money.  Again and again $AHE asked what the crates "
    "would hold.  There was no answer.  Albert knew nothing more.",

    "Security at the dock will be tight, far tighter than at a pool hall.  There will be guards "
    "at the gates, on the roofs, and out on the water.  This is no job to do alone.",

    "$A dries off with an old towel, picks up a walkie talkie, and holds it close to $AHIS "
    "mouth.  \"Be back at base tomorrow.  We have an attack to plan.\"",

    "For a moment there is only static.  Then a voice answers, quiet and wide awake.  "
    "\"Understood.  I'll be there.\"  Mission complete.  Press Escape to continue.",
};

}  // namespace

extern constinit const Mission mission2 = {
    .number = 2,
    .objective = "Invade the mobster meeting at the pool hall.",
    .ambience = "pool-hall",
    .start = {.paragraphs = startpage, .breakafterlast = false},
    .placements = placements,
    .mapwidth = poolhall::mapwidth,
    .mapheight = poolhall::mapheight,
    .furniture = poolhall::furniture,
    .enemies = poolhall::mobsters,
    .ending = Ending{.page = {.paragraphs = endpage, .breakafterlast = false},
                     .says = "Victory",
                     .bonuspoints = 8,
                     .saves = true},
};

}  // namespace duskmarch
