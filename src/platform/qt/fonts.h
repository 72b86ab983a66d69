// The game's fonts, or similar ones where they are missing.
#pragma once

#include <QFont>
#include <string_view>

namespace duskmarch {

QFont similarfont(std::string_view family, int pixels);

}  // namespace duskmarch
