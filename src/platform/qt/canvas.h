// The drawing for onlookers.
#pragma once

#include <QPixmap>
#include <QRect>
#include <QSize>
#include <functional>
#include <vector>

#include "platform/desktop.h"

class QPainter;

namespace duskmarch {

// Keeps what was drawn in a pixmap of its own, so that it outlives repaints and resizing. What the
// game draws waits for the next paint event: drawing never holds up what is to be said, and the
// fonts are not loaded before the game has begun to speak.
class QtCanvas : public Canvas {
 public:
  // `drawn` is told where something new is to be seen.
  explicit QtCanvas(std::function<void(const QRect&)> drawn);

  // The surface is `size` now, at `ratio` device pixels each way for one of the game's.
  void fit(QSize size, qreal ratio);
  void show(QPainter& painter, const QRect& area);

  int width() const override { return size_.width(); }
  int height() const override { return size_.height(); }
  void fill(const Rect& area, Colour colour) override;
  void outline(const Rect& area, Colour colour) override;
  void text(int x, int y, std::string_view font, int points, Colour colour,
            std::string_view text) override;

 private:
  using Stroke = std::function<void(QPainter&)>;

  void draw(const QRect& area, Stroke stroke);
  void catchup();

  std::function<void(const QRect&)> drawn_;
  QSize size_;
  QPixmap pixmap_;  // at least `size_`: a part cut off by a smaller window comes back later
  std::vector<Stroke> waiting_;
};

}  // namespace duskmarch
