#include "platform/qt/fonts.h"

#include <QStringList>

#include "platform/qt/text.h"

namespace duskmarch {

QFont similarfont(std::string_view family, int pixels) {
  QFont font({toqt(family), "Arial", "Liberation Sans", "DejaVu Sans"});
  font.setPixelSize(pixels);
  return font;
}

}  // namespace duskmarch
