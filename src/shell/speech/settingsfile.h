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
// The lines of such a file of the game, at least `count`, empty where it has none. One
// that cannot be read is logged as an error of `what`. Nothing where there is no such file, or none
// that can be read.
std::optional<std::vector<std::string>> readsettings(const Game& game, std::string_view name,
                                                     std::size_t count, std::string_view what);
// Writes such a file anew, for keepfile(). Where that cannot be done, what was there is there
// still.
void writesettings(const std::filesystem::path& file, std::string_view text);

}  // namespace duskmarch
