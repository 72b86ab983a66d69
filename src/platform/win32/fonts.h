// The game's fonts, or similar ones where they are missing.
#pragma once

#include <map>
#include <string>
#include <string_view>
#include <utility>

#include "platform/win32/handles.h"

namespace duskmarch {

// Letters of a family, so many device pixels high.
GdiObject similarfont(std::string_view family, int pixels, bool bold = false);
// What the system writes its boxes in, for a screen of that many dots an inch.
GdiObject boxfont(unsigned dpi);

// Fonts that are needed again with the next drawing.
class FontShelf {
 public:
  HGDIOBJ font(std::string_view family, int pixels);

 private:
  std::map<std::pair<std::string, int>, GdiObject> fonts_;
};

}  // namespace duskmarch
