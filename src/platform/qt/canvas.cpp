#include "platform/qt/canvas.h"

#include <QFontMetrics>
#include <QPainter>
#include <utility>

#include "platform/qt/fonts.h"
#include "platform/qt/text.h"

namespace duskmarch {

namespace {

// Strokes that wait while a page covers the drawing, or nobody looks.
constexpr std::size_t mostwaiting = 2000;

QRect qtrect(const Rect& area) {
  return {area.left, area.top, area.right - area.left, area.bottom - area.top};
}

QColor qtcolour(Colour colour) {
  return {colour.red, colour.green, colour.blue};
}

}  // namespace

QtCanvas::QtCanvas(std::function<void(const QRect&)> drawn) : drawn_(std::move(drawn)) {}

void QtCanvas::fit(QSize size, qreal ratio) {
  size_ = size;
  const QSize before = pixmap_.deviceIndependentSize().toSize();
  const QSize needed = before.expandedTo(size);
  if (needed == before && pixmap_.devicePixelRatio() == ratio) return;
  QPixmap grown(needed * ratio);
  grown.setDevicePixelRatio(ratio);
  grown.fill(Qt::black);
  if (!pixmap_.isNull()) QPainter(&grown).drawPixmap(0, 0, pixmap_);
  pixmap_ = grown;
}

void QtCanvas::show(QPainter& painter, const QRect& area) {
  catchup();
  const qreal ratio = pixmap_.devicePixelRatio();
  painter.drawPixmap(QRectF(area), pixmap_,
                     QRectF(QPointF(area.topLeft()) * ratio, QSizeF(area.size()) * ratio));
}

void QtCanvas::fill(const Rect& area, Colour colour) {
  draw(qtrect(area), [=](QPainter& painter) { painter.fillRect(qtrect(area), qtcolour(colour)); });
}

void QtCanvas::outline(const Rect& area, Colour colour) {
  draw(qtrect(area), [=](QPainter& painter) {
    painter.setPen(qtcolour(colour));
    painter.drawRect(qtrect(area).adjusted(0, 0, -1, -1));
  });
}

void QtCanvas::text(int x, int y, std::string_view font, int points, Colour colour,
                    std::string_view text) {
  const QRect area(x, y, size_.width() - x, size_.height() - y);
  draw(area, [=, family = std::string(font), words = toqt(text)](QPainter& painter) {
    painter.setFont(similarfont(family, points));
    painter.setPen(qtcolour(colour));
    painter.drawText(x, y + painter.fontMetrics().ascent(), words);
  });
}

void QtCanvas::draw(const QRect& area, Stroke stroke) {
  waiting_.push_back(std::move(stroke));
  if (waiting_.size() >= mostwaiting) catchup();
  drawn_(area);
}

void QtCanvas::catchup() {
  if (waiting_.empty()) return;
  QPainter painter(&pixmap_);
  for (const Stroke& stroke : waiting_) stroke(painter);
  waiting_.clear();
}

}  // namespace duskmarch
