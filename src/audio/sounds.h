// The pool of sound buffers for effects.
#pragma once

#include <string>
#include <string_view>

#include "game.h"

namespace duskmarch {

// Plays a WAV file, named relative to the program folder. `volume` is in hundredths of a decibel,
// -5000 to 0; `pan` -10000 to 10000; `buffer` 0 to 49, or -1 for the next one of the rotation.
void makesound(Game& game, std::string_view name, double volume, double pan, bool loop, int buffer);
// makesound() as every menu and page uses it: once, at full volume, centred, in the next buffer.
void playeffect(Game& game, std::string_view name);

// Loads a WAV file into a buffer; `name` comes back trimmed. A missing or bad file is logged, and
// the buffer keeps what it held.
void setsound(Game& game, int buffer, std::string& name);
// Each comes back rounded to two decimals; a value out of range changes nothing.
void setvol(Game& game, int buffer, double& volume);
void setpan(Game& game, int buffer, double& pan);

// Table lookups of the sine and cosine of an angle in radians, for sounds placed around the player;
// none is yet.
double quicksin(Game& game, double angle);
double quickcos(Game& game, double angle);
// Fills `sintable` and `costable`.
void buildtables(Game& game);

}  // namespace duskmarch
