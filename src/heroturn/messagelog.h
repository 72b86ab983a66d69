// The narration of the turn.
#pragma once

#include <string_view>

#include "game.h"

namespace duskmarch {

// Writes one narration line, placeholders filled in and trimmed, to the message log, the turn
// summary and `turnsummary`, and cuts off the speech in progress. The line is not spoken here.
void list1additem(Game& game, std::string_view line);

}  // namespace duskmarch
