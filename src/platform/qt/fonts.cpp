#include "platform/qt/fonts.h"

#include <QStringList>

#include "platform/qt/text.h"

namespace duskmarch {

QFont similarfont(std::string_view family, int points) {
  QFont font({toqt(family), "Arial", "Liberation Sans", "DejaVu Sans"});
  font.setPixelSize(qRound(points * 96 / 72.0));
  return font;
}

}  // namespace duskmarch
