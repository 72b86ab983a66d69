// The game's own files, its settings, saved games and logs, by name. Where the program's folder
// cannot be written they are in another one; what only lies beside the program is read there.
#pragma once

#include <filesystem>
#include <optional>
#include <string_view>

#include "game.h"

namespace duskmarch {

// The file that is read, found as by findfile(); nothing where there is none.
std::optional<std::filesystem::path> ownfile(const Game& game, std::string_view name);
// The file that is written, whether it is there yet or not.
std::filesystem::path ownfiletowrite(const Game& game, std::string_view name);

}  // namespace duskmarch
