#include "platform/replay/transcript.h"

#include <array>
#include <charconv>

#include "values/scriptlines.h"

namespace duskmarch {

void Transcript::line(std::string_view line) {
  if (closed_) return;
  text_ += line;
  text_ += '\n';
}

void Transcript::addfield(std::string_view text) {
  text_ += '\t';
  appendescaped(text_, text);
}

void Transcript::addfield(int number) {
  std::array<char, 12> digits{};
  const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), number).ptr;
  text_ += '\t';
  text_.append(digits.data(), end);
}

}  // namespace duskmarch
