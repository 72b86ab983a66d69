// debuglog.txt in the folder of the game's files: what went wrong and was survived.
#pragma once

#include <filesystem>
#include <string_view>

#include "game.h"

namespace duskmarch {

inline constexpr std::string_view logfile = "debuglog.txt";
inline constexpr std::string_view olderlogfile = "debuglog.old";

// Appends one line to the log in `folder`; one that cannot be written is not missed. Where the line
// would make the log larger than largesttextfile, the log becomes the older one and begins anew.
void logline(const std::filesystem::path& folder, std::string_view line);
// Appends "error in " + procedure + ": " + description.
void logerror(const Game& game, std::string_view procedure, std::string_view description);

}  // namespace duskmarch
