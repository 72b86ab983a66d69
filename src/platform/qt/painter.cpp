#include "platform/qt/painter.h"

#include <QFontMetrics>

#include "platform/qt/fonts.h"
#include "platform/qt/text.h"

namespace duskmarch {

namespace {

QColor qtcolour(Colour colour) {
  return {colour.red, colour.green, colour.blue};
}

QFont font(Lettering letters) {
  return similarfont(letters.family, letters.pixels);
}

}  // namespace

QtPainter::QtPainter(QPaintDevice& device, qreal ratio) : painter_(&device) {
  painter_.scale(1 / ratio, 1 / ratio);
}

void QtPainter::fill(const Rect& area, Colour colour) {
  painter_.fillRect(area.left, area.top, area.right - area.left, area.bottom - area.top,
                    qtcolour(colour));
}

void QtPainter::text(int x, int y, Lettering letters, Colour colour, std::string_view words) {
  const QFont withletters = font(letters);
  painter_.setFont(withletters);
  painter_.setPen(qtcolour(colour));
  painter_.drawText(x, y + QFontMetrics(withletters).ascent(), toqt(words));
}

int QtPainter::width(Lettering letters, std::string_view words) {
  return QFontMetrics(font(letters)).horizontalAdvance(toqt(words));
}

}  // namespace duskmarch
