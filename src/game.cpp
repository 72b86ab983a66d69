#include "game.h"

namespace duskmarch {

std::string SummaryText::text() const {
  std::size_t size = 0;
  for (const std::string& line : lines) size += line.size() + 2;
  std::string text;
  text.reserve(size);
  for (auto line = lines.rbegin(); line != lines.rend(); ++line) {
    if (line != lines.rbegin()) text += "\r\n";
    text += *line;
  }
  return text;
}

}  // namespace duskmarch
