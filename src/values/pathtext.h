// Names of files as texts. All texts of the game are UTF-8, which a system's paths need not be.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace duskmarch {

// The path that a UTF-8 text names. Throws std::filesystem::filesystem_error for a text that no
// path of this system can stand for. Names of nothing but ASCII need no help.
std::filesystem::path pathof(std::string_view text);
// A path in UTF-8; one whose name is no proper text gets a question mark for each letter that is
// not ASCII.
std::string textof(const std::filesystem::path& path);

}  // namespace duskmarch
