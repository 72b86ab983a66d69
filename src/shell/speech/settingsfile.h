// What the files that keep settings have in common: a value a line, and a file that is always
// whole.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "game.h"

namespace duskmarch {

// The number in a line, rounded down, if it is one from `least` to `most`.
std::optional<int> setting(std::string_view line, int least, int most);
// The lines of such a file in the program folder, at least `count`, empty where it has none. One
// that cannot be read is logged as an error of `what`. Nothing where there is no such file, or none
// that can be read.
std::optional<std::vector<std::string>> readsettings(const Game& game, std::string_view name,
                                                     std::size_t count, std::string_view what);
// Writes it anew; false when that cannot be done: then what was there is there still.
bool writesettings(const Game& game, std::string_view name, std::string_view text);

}  // namespace duskmarch
