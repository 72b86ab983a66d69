// The game's fonts, or similar ones where they are missing.
#pragma once

#include <QFont>
#include <filesystem>
#include <string_view>

namespace duskmarch {

// Makes the fonts in `folder`, if there is one, known to the program.
void addfonts(const std::filesystem::path& folder);
QFont similarfont(std::string_view family, int pixels);

}  // namespace duskmarch
