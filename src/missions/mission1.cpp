// The tattoo parlor.
#include <array>

#include "missions/missiontable.h"

namespace duskmarch {

namespace {

// clang-format off
constexpr std::array placements = {
    Placement{.hero = 1, .x = 1, .y = 2},
    Placement{.hero = 2, .x = 1, .y = 2},
    Placement{.hero = 3, .x = 1, .y = 2},
};

constexpr std::array jessiesabilities = {
    AbilityUses{.ability = "Throw", .uses = 1},
    AbilityUses{.ability = "Kick", .uses = 1},
};

constexpr std::array enemies = {
    Enemy{.mob = {.name = "Punk Jessie", .gender = "M", .type = mobtype::gifted, .health = 10,
                  .x = 3, .y = 1, .fight = 4},
          .abilities = jessiesabilities},
    Enemy{.mob = {.name = "Punk Rachael", .gender = "F", .type = mobtype::ordinary, .health = 4,
                  .x = 4, .y = 3, .fight = 3}},
    Enemy{.mob = {.name = "Punk Carlos", .gender = "M", .type = mobtype::ordinary, .health = 5,
                  .x = 1, .y = 2, .fight = 4, .spawntime = 3,
                  .spawntext = "$N emerges from the back room, after hearing the scuffle.  "}},
};

constexpr std::array furniture = {
    Furniture{.name = "Table", .x = 2, .y = 2},
    Furniture{.name = "Chair", .x = 2, .y = 3},
};
// clang-format on

constexpr std::array<std::string_view, 7> startpage = {
    "It is another stormy night in the city.  Rain drums on the rooftops and runs down the "
    "gutters in black streams.  Far away a siren wails, and then another one, closer.  Here, "
    "sirens are as common as thunder.",

    "High above the alleys $A is out on $AHIS nightly patrol, moving from roof to roof without a "
    "sound.  At the edge of an old warehouse $AHE stops to listen.  Under the hiss of the rain "
    "there are voices, a long way off, and then a burst of laughter.",

    "These are not drunkards stumbling home, and not workers coming off the late shift.  Between "
    "the shouts there is another voice, a softer one, and it is crying for help.  $A has heard "
    "enough.  It is time to act.",

    "By the time $A drops into the alley, the laughter has moved on.  Broken glass crunches "
    "underfoot.  There is blood on the bricks, already thinning in the rain.  In a puddle "
    "against the wall lies an old man, badly beaten and barely awake.",

    "$A kneels down, places an emergency call on a burner phone, and leaves it beside the old "
    "man with the line still open.  \"Help is on the way,\" $AHE says.  \"Stay awake, and listen "
    "for the sirens.\"  The old man nods.  Three sets of muddy footprints lead out of the alley, "
    "and $A follows them into the dark.",

    "The trail ends two streets further on.  From the shadow of a fire escape $A watches three "
    "punks walk into a small tattoo parlor.  They are still laughing about the old man, and "
    "about how he begged them to stop.  The door falls shut before $AHE can hear any more.",

    "The windows of the parlor are painted over from top to bottom, and there is no telling what "
    "waits inside.  More of the gang may be on the way, so it is best to strike now, before "
    "anyone else arrives.  $A takes one slow breath, pushes the door open, and steps in.  Press "
    "Escape to continue.",
};

constexpr std::array<std::string_view, 3> endpage = {
    "Sirens rise over the sound of the rain, and this time they are coming closer.  First comes "
    "the ambulance, then the police.  Two streets away doors slam, and calm voices gather around "
    "the old man.  He is in good hands now.",

    "$A drags the unconscious punks into the middle of the room and ties them up, back to back, "
    "with the cord of a broken lamp.  Outside, $AHE picks up a loose brick and throws it through "
    "the largest window.  The glass comes down with a crash, and the alarm of the parlor begins "
    "to ring.  Now the police will know where to come.",

    "When the first patrol car turns the corner, $A is already deep in the dark alley, and "
    "nobody sees which way $AHE goes.  Behind, there is only the rain, and the alarm ringing on "
    "and on.  Mission complete.  Press Escape to continue.",
};

}  // namespace

extern constinit const Mission mission1 = {
    .number = 1,
    .objective = "Defeat the punks at the tattoo parlor.",
    .ambience = "tattoo-parlor",
    .start = {.paragraphs = startpage, .breakafterlast = false},
    .placements = placements,
    .mapwidth = 4,
    .mapheight = 3,
    .furniture = furniture,
    .enemies = enemies,
    .ending =
        Ending{
            .page = {.paragraphs = endpage}, .says = "Victory.", .bonuspoints = 8, .saves = true},
};

}  // namespace duskmarch
