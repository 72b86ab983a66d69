// The game's UTF-8 texts as Qt's, and back.
#pragma once

#include <QString>
#include <string>
#include <string_view>

namespace duskmarch {

inline QString toqt(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

inline std::string fromqt(const QString& text) {
  return text.toStdString();
}

}  // namespace duskmarch
