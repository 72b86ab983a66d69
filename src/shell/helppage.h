// The help page: the keys of the screen that it was opened on.
#pragma once

#include <span>

#include "game.h"
#include "shell/keyrow.h"

namespace duskmarch {

// Opens the page, as a story page opens, with those of the keys that the present screen tells of.
void openhelp(Game& game, std::span<const PlayerKey> keys);
// Opens the same page with all sounds of fights and of the map, which F7 plays there.
void opensounds(Game& game);
// The keys of the page.
void helplabel_keydown(Game& game, KeyPress press);

}  // namespace duskmarch
