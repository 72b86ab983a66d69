// What happens in a fight and on the map, to be heard. The rules report each event where it is, by
// one call; what was reported is played when it is told. Nothing here is ever waited for, and
// nothing depends on it.
#pragma once

#include <cstdint>
#include <string_view>

#include "audio/cuetable.h"
#include "game.h"

namespace duskmarch {

// Something happened: on a tile, where somebody is, or everywhere.
void heard(Game& game, cue::Id cue, int x, int y);
void heard(Game& game, cue::Id cue, const Mob& where);
void heard(Game& game, cue::Id cue);
// A blow or a bullet has taken `damage` from somebody, who may be down now; or it has taken none.
void heardblow(Game& game, const Mob& victim, std::int64_t damage);
// The same for one that also dazes whoever is left standing.
void hearddazingblow(Game& game, const Mob& victim, std::int64_t damage);

// Plays what was reported: an order at an even pace, an end of turn within three seconds however
// much it was. Of too much, steps go first, and a hero's hurt never.
void playorder(Game& game);
void playendofturn(Game& game);
// Plays one cue at once, on a tile or everywhere.
void playcue(Game& game, cue::Id cue, int x, int y);
void playcue(Game& game, cue::Id cue);
// The player pressed a key: what is not heard yet never will be.
void stopcues(Game& game);

// The loop that is heard from now on; none for an empty name. `name` must last.
void setambience(Game& game, std::string_view name);
// Tells the device how loud the player wants both.
void setcuevolumes(Game& game);

}  // namespace duskmarch
