// Paints what onlookers see, by the system's drawing.
#pragma once

#include "platform/frontend/drawing.h"
#include "platform/win32/fonts.h"

namespace duskmarch {

class GdiPainter : public Painter {
 public:
  // Both outlive it; no font that is taken from the shelf stays in the context.
  GdiPainter(HDC context, FontShelf& fonts);

  void fill(const Rect& area, Colour colour) override;
  void text(int x, int y, Lettering letters, Colour colour, std::string_view words) override;
  int width(Lettering letters, std::string_view words) override;

 private:
  HDC context_;
  FontShelf& fonts_;
};

// A picture of the window's size that is painted out of sight, so that nothing flickers.
class BackBuffer {
 public:
  // The context to paint on, `size` device pixels, for a window that `screen` shows.
  HDC context(HDC screen, SIZE size);

 private:
  MemoryDc context_;
  GdiObject bitmap_;
  SIZE size_ = {};
};

}  // namespace duskmarch
