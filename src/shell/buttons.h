// The hidden buttons of the main window.
#pragma once

#include "game.h"

namespace duskmarch {

// What buttons do in a front end that shows some: end the turn; perform the option at the menu
// position; select the next living hero.
void command1_click(Game& game);
void command2_click(Game& game);
void command3_click(Game& game);

}  // namespace duskmarch
