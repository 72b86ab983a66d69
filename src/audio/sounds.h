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

// Loads a WAV file into a buffer; spaces around its name do not count. A missing or bad file is
// logged, and the buffer keeps what it held.
void setsound(Game& game, int buffer, std::string_view name);
// Each returns the value rounded to two decimals; one out of range changes nothing.
double setvol(Game& game, int buffer, double volume);
double setpan(Game& game, int buffer, double pan);

// Table lookups of the sine and cosine of an angle in radians, for sounds placed around the player;
// none is yet.
double quicksin(Game& game, double angle);
double quickcos(Game& game, double angle);
// Fills `sintable` and `costable`.
void buildtables(Game& game);

}  // namespace duskmarch
