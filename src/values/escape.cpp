#include "values/escape.h"

#include <array>

namespace duskmarch {

namespace {

constexpr std::string_view special = "\\\t\r\n";
constexpr std::string_view letters = "\\trn";

constexpr auto isspecial = [] {
  std::array<bool, 256> table{};
  for (const char c : special) table[static_cast<unsigned char>(c)] = true;
  return table;
}();

}  // namespace

void appendescaped(std::string& out, std::string_view text) {
  std::size_t start = 0;
  for (std::size_t at = 0; at < text.size(); ++at) {
    if (!isspecial[static_cast<unsigned char>(text[at])]) continue;
    out.append(text, start, at - start);
    out += '\\';
    out += letters[special.find(text[at])];
    start = at + 1;
  }
  out.append(text, start);
}

std::string escaped(std::string_view text) {
  std::string out;
  appendescaped(out, text);
  return out;
}

std::string unescaped(std::string_view text) {
  std::string out;
  for (std::size_t at = 0; at < text.size(); ++at) {
    const std::size_t letter = text[at] == '\\' && at + 1 < text.size() ? letters.find(text[at + 1])
                                                                        : std::string_view::npos;
    out += letter == std::string_view::npos ? text[at] : special[letter];
    if (letter != std::string_view::npos) ++at;
  }
  return out;
}

}  // namespace duskmarch
