#include "values/textfile.h"

#include <algorithm>
#include <charconv>

namespace duskmarch {

std::vector<std::string> splitlines(std::string_view text) {
  std::vector<std::string> lines;
  for (std::size_t start = 0; start < text.size();) {
    const std::size_t end = std::min(text.find('\n', start), text.size());
    const bool carriagereturn = end > start && text[end - 1] == '\r';
    lines.emplace_back(text, start, end - start - (carriagereturn ? 1 : 0));
    start = end + 1;
  }
  return lines;
}

std::string numberline(Number number) {
  if (!number.isset()) return "";
  return (number < 0 ? "" : " ") + std::to_string(int{number}) + " ";
}

std::optional<Number> parsenumberline(std::string_view line) {
  const std::string_view digits = trim(line);
  if (digits.empty()) return Number();
  std::int64_t value = 0;
  const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value);
  if (error != std::errc() || end != digits.data() + digits.size()) return std::nullopt;
  if (value < -Number::limit || value > Number::limit) return std::nullopt;
  return Number(value);
}

std::string_view trim(std::string_view text) {
  const std::size_t first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

}  // namespace duskmarch
