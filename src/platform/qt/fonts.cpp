#include "platform/qt/fonts.h"

#include <QFile>
#include <QFontDatabase>
#include <QStringList>
#include <system_error>

#include "platform/qt/text.h"

namespace duskmarch {

void addfonts(const std::filesystem::path& folder) {
  std::error_code missing;
  for (const auto& entry : std::filesystem::directory_iterator(folder, missing)) {
    if (entry.path().extension() != ".ttf") continue;
    QFontDatabase::addApplicationFont(QFile::decodeName(entry.path().c_str()));
  }
}

QFont similarfont(std::string_view family, int pixels) {
  QFont font({toqt(family), "Arial", "Liberation Sans", "DejaVu Sans"});
  font.setPixelSize(pixels);
  return font;
}

}  // namespace duskmarch
