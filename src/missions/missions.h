// The frame that every mission shares.
#pragma once

#include <string_view>

#include "game.h"

namespace duskmarch {

// Starts mission `missionnumber`. A number without a mission has no map, story, heroes' places or
// enemies of its own; the heroes are made ready all the same.
void startusout(Game& game);
// Decides victory and defeat; called each time the turn summary is closed during a mission.
void endcheck(Game& game);
// The loop of the place where the player is: a mission's or that of menus and hideout. Empty where
// there is none.
std::string_view ambienceof(const Game& game);
// The keys of the story page.
void storylabel_keydown(Game& game, KeyPress key);

}  // namespace duskmarch
