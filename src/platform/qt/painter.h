// Painting with Qt.
#pragma once

#include <QPainter>

#include "platform/frontend/drawing.h"

namespace duskmarch {

class QtPainter : public Painter {
 public:
  // Paints on `device`, which has `ratio` device pixels each way for one of its own.
  QtPainter(QPaintDevice& device, qreal ratio);

  void fill(const Rect& area, Colour colour) override;
  void text(int x, int y, Lettering letters, Colour colour, std::string_view words) override;
  int width(Lettering letters, std::string_view words) override;

 private:
  QPainter painter_;
};

}  // namespace duskmarch
