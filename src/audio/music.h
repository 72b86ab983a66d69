// Two players for background music from MP3 files, ready for missions that bring some. What fails
// does so quietly: nothing is spoken or logged. Volumes are percentages where a file is loaded,
// hundredths of a decibel elsewhere.
#pragma once

#include <string_view>

#include "game.h"

namespace duskmarch {

// Loads a file, named relative to the program folder, into player `z` and starts it. Only player 0
// heeds the volume, player 1 plays at full; -1 becomes `musicvolume`, for the caller too.
void mp3load(Game& game, int z, std::string_view name, int& volume);
void mp3load(Game& game, int z, std::string_view name);
// Starts a loaded player, or lets it go on; whether it does.
bool mp3play(Game& game, int z);

// What the two above are made of; whether they succeeded.
bool mp3open(Game& game, int z, std::string_view name, int volume);
bool mp3run(Game& game, int z);
// -5000 to 0; a volume beyond is taken as the nearest of them.
void mp3setvolume(Game& game, int z, int volume);

}  // namespace duskmarch
