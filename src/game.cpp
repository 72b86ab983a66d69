#include "game.h"

#include <ranges>

namespace duskmarch {

std::string SummaryText::text() const {
  std::string text;
  for (const std::string& line : lines | std::views::reverse) {
    if (&line != &lines.back()) text += "\r\n";
    text += line;
  }
  return text;
}

}  // namespace duskmarch
