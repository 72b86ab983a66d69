// The game's fonts, or similar ones where they are missing.
#pragma once

#include <QFont>
#include <string_view>

namespace duskmarch {

// A point is 1/72 of 96 pixels whatever the screen, for the game lays out its drawing in pixels.
QFont similarfont(std::string_view family, int points);

}  // namespace duskmarch
