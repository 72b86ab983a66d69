#include "platform/win32/fonts.h"

#include "platform/win32/text.h"

namespace duskmarch {

namespace {

// A window that is resized asks for one size after the other.
constexpr std::size_t mostkept = 32;

// Its letters are bitmaps of a few sizes; those of its successor are crisp at any.
std::string_view scalable(std::string_view family) {
  return family == "MS Sans Serif" ? "Microsoft Sans Serif" : family;
}

}  // namespace

GdiObject similarfont(std::string_view family, int pixels, bool bold) {
  return GdiObject(CreateFontW(-pixels, 0, 0, 0, bold ? FW_BOLD : FW_NORMAL, FALSE, FALSE, FALSE,
                               DEFAULT_CHARSET, OUT_TT_PRECIS, CLIP_DEFAULT_PRECIS,
                               CLEARTYPE_QUALITY, DEFAULT_PITCH | FF_SWISS,
                               utf16(scalable(family)).c_str()));
}

GdiObject boxfont(unsigned dpi) {
  NONCLIENTMETRICSW metrics{};
  metrics.cbSize = sizeof metrics;
  SystemParametersInfoForDpi(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0, dpi);
  return GdiObject(CreateFontIndirectW(&metrics.lfMessageFont));
}

HGDIOBJ FontShelf::font(std::string_view family, int pixels) {
  if (fonts_.size() > mostkept) fonts_.clear();
  GdiObject& font = fonts_[{std::string(family), pixels}];
  if (!font) font = similarfont(family, pixels);
  return font.get();
}

}  // namespace duskmarch
