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
// Writes it anew. Where that cannot be done, what was there is there still, and `failed` is called:
// at once, or, where another program has the file open, when that has been so for half a second.
void writesettings(Game& game, std::string_view name, std::string_view text,
                   void (*failed)(Game& game));
// Tries again what another program has kept from being written; whether anything is left to try. A
// front end calls it every few hundredths of a second while there are `busysettings`, and at the
// end of the program until it is done.
bool trysettingsagain(Game& game);

}  // namespace duskmarch
