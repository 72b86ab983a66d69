// What is drawn on one surface, kept so that it can be painted at any size.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

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

  int x(int unit) const;
  int y(int unit) const;
};

class Drawing : public Canvas {
 public:
  // A clean surface of that many units.
  void begin(int width, int height);
  void paint(const View& view, Painter& painter) const;

  int width() const override { return width_; }
  int height() const override { return height_; }
  void fill(const Rect& area, Colour colour) override;
  void outline(const Rect& area, Colour colour) override;
  void text(const Text& text) override;

 private:
  enum class Kind { fill, outline, text };
  struct Stroke {
    Kind kind = Kind::fill;
    Rect area;
    Colour colour;
    std::size_t text = 0;  // the index of a text
  };

  int width_ = 0;
  int height_ = 0;
  std::vector<Stroke> strokes_;
  std::vector<Text> texts_;  // their words are kept in `words_`
  std::vector<std::string> words_;
};

}  // namespace duskmarch
