// What is drawn on one surface, kept so that it can be painted at any size.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "platform/desktop.h"
#include "platform/frontend/painter.h"

namespace duskmarch {

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
