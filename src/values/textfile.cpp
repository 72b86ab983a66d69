#include "values/textfile.h"

#include <charconv>
#include <fstream>
#include <iterator>
#include <stdexcept>

namespace duskmarch {

namespace {

std::string readwhole(const std::filesystem::path& file) {
  // Opening a pipe or a device would wait for its other end, so it is not even tried.
  if (!std::filesystem::is_regular_file(file)) throw std::runtime_error("it is no file");
  std::ifstream stream(file, std::ios::binary);
  if (!stream) throw std::runtime_error("it cannot be opened");
  std::string text{std::istreambuf_iterator<char>(stream), {}};
  if (stream.bad()) throw std::runtime_error("it cannot be read");
  return text;
}

}  // namespace

std::vector<std::string> readlines(const std::filesystem::path& file) {
  const std::string text = readwhole(file);
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
