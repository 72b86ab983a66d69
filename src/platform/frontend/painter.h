// How a window paints, and how what is drawn in units lies in its pixels.
#pragma once

#include <cmath>
#include <string_view>

#include "platform/desktop.h"

namespace duskmarch {

// Letters of a family, so many device pixels high.
struct Lettering {
  std::string_view family;
  int pixels = 0;
};

// A window's way of painting, in device pixels.
class Painter {
 public:
  virtual ~Painter() = default;
  virtual void fill(const Rect& area, Colour colour) = 0;
  // `x`, `y` is the top left corner.
  virtual void text(int x, int y, Lettering letters, Colour colour, std::string_view words) = 0;
  virtual int width(Lettering letters, std::string_view words) = 0;
};

// How a surface's units lie on the screen.
struct View {
  double scale = 1;  // device pixels of a unit
  int topunit = 0;   // the unit of the surface's top ...
  int top = 0;       // ... and its device pixel
  int smallest = 0;  // letters are at least so many device pixels high

  int x(int unit) const { return scaled(unit); }
  int y(int unit) const { return top + scaled(unit - topunit); }

 private:
  int scaled(int units) const { return static_cast<int>(std::lround(units * scale)); }
};

}  // namespace duskmarch
