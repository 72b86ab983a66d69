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
  std::array<char, 12> field;
  field.front() = '\t';
  const char* const end = std::to_chars(field.data() + 1, field.data() + field.size(), number).ptr;
  text_.append(field.data(), static_cast<std::size_t>(end - field.data()));
}

}  // namespace duskmarch
