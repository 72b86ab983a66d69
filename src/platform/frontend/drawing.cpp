#include "platform/frontend/drawing.h"

#include <algorithm>
#include <cmath>

#include "platform/frontend/lettering.h"

namespace duskmarch {

namespace {

// Four lines; they lie inward of the first corner and hold the second one.
void paintoutline(const Rect& area, const View& view, Colour colour, Painter& painter) {
  const int line = std::max(1, static_cast<int>(view.scale));
  const Rect outer = {view.x(area.left), view.y(area.top), view.x(area.right) + line,
                      view.y(area.bottom) + line};
  painter.fill({outer.left, outer.top, outer.right, outer.top + line}, colour);
  painter.fill({outer.left, outer.bottom - line, outer.right, outer.bottom}, colour);
  painter.fill({outer.left, outer.top, outer.left + line, outer.bottom}, colour);
  painter.fill({outer.right - line, outer.top, outer.right, outer.bottom}, colour);
}

}  // namespace

void Drawing::begin(int width, int height) {
  width_ = width;
  height_ = height;
  strokes_.clear();
  texts_.clear();
  words_.clear();
}

void Drawing::fill(const Rect& area, Colour colour) {
  strokes_.push_back({.kind = Kind::fill, .area = area, .colour = colour});
}

void Drawing::outline(const Rect& area, Colour colour) {
  strokes_.push_back({.kind = Kind::outline, .area = area, .colour = colour});
}

void Drawing::text(const Text& text) {
  strokes_.push_back(
      {.kind = Kind::text, .area = {}, .colour = text.colour, .text = texts_.size()});
  texts_.push_back(text);
  words_.emplace_back(text.words);
}

void Drawing::paint(const View& view, Painter& painter) const {
  TextPainter texts(view, painter);
  for (const Stroke& stroke : strokes_) {
    const Rect& area = stroke.area;
    switch (stroke.kind) {
      case Kind::fill:
        painter.fill({view.x(area.left), view.y(area.top), view.x(area.right), view.y(area.bottom)},
                     stroke.colour);
        break;
      case Kind::outline: paintoutline(area, view, stroke.colour, painter); break;
      case Kind::text: texts.paint(texts_[stroke.text], words_[stroke.text]); break;
    }
  }
}

}  // namespace duskmarch
