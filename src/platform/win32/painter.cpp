#include "platform/win32/painter.h"

#include "platform/win32/text.h"

namespace duskmarch {

namespace {

COLORREF colourref(Colour colour) {
  return RGB(colour.red, colour.green, colour.blue);
}

}  // namespace

GdiPainter::GdiPainter(HDC context, FontShelf& fonts) : context_(context), fonts_(fonts) {
  SetTextAlign(context_, TA_LEFT | TA_TOP);
}

// The quickest way to a plain area: a text without letters on a background of that colour.
void GdiPainter::fill(const Rect& area, Colour colour) {
  const RECT rectangle = {area.left, area.top, area.right, area.bottom};
  SetBkColor(context_, colourref(colour));
  ExtTextOutW(context_, 0, 0, ETO_OPAQUE, &rectangle, nullptr, 0, nullptr);
}

void GdiPainter::text(int x, int y, Lettering letters, Colour colour, std::string_view words) {
  const Selected font(context_, fonts_.font(letters.family, letters.pixels));
  const std::wstring wide = utf16(words);
  SetBkMode(context_, TRANSPARENT);
  SetTextColor(context_, colourref(colour));
  TextOutW(context_, x, y, wide.data(), static_cast<int>(wide.size()));
}

int GdiPainter::width(Lettering letters, std::string_view words) {
  const Selected font(context_, fonts_.font(letters.family, letters.pixels));
  const std::wstring wide = utf16(words);
  SIZE size{};
  GetTextExtentPoint32W(context_, wide.data(), static_cast<int>(wide.size()), &size);
  return size.cx;
}

HDC BackBuffer::context(HDC screen, SIZE size) {
  if (context_ && size_.cx == size.cx && size_.cy == size.cy) return context_.get();
  // A bitmap that is selected is not deleted: the context goes first.
  context_.reset(CreateCompatibleDC(screen));
  bitmap_.reset(CreateCompatibleBitmap(screen, size.cx, size.cy));
  SelectObject(context_.get(), bitmap_.get());
  size_ = size;
  return context_.get();
}

}  // namespace duskmarch
