#include "values/escape.h"

#include <array>
#include <cstdint>
#include <cstring>

namespace duskmarch {

namespace {

constexpr std::string_view special = "\\\t\r\n";
constexpr std::string_view letters = "\\trn";

constexpr auto isspecial = [] {
  std::array<bool, 256> table{};
  for (const char c : special) table[static_cast<unsigned char>(c)] = true;
  return table;
}();

using Block = std::uint64_t;  // eight bytes looked at together: most of a text is plain

constexpr Block everybyte(unsigned char byte) {
  return ~Block{0} / 255 * byte;
}

// Whether none of the bytes is a backslash or a control character; now and then it says no to a
// block that is plain, never yes to one that is not.
bool plainblock(const char* bytes) {
  Block block = 0;
  std::memcpy(&block, bytes, sizeof block);
  const Block nobackslash = block ^ everybyte('\\');
  const Block controls = (block - everybyte(' ')) & ~block;
  const Block backslashes = (nobackslash - everybyte(1)) & ~nobackslash;
  return ((controls | backslashes) & everybyte(0x80)) == 0;
}

// Where the next byte that needs escaping stands, from `at` on.
std::size_t nextspecial(std::string_view text, std::size_t at) {
  while (at + sizeof(Block) <= text.size() && plainblock(text.data() + at)) at += sizeof(Block);
  while (at < text.size() && !isspecial[static_cast<unsigned char>(text[at])]) ++at;
  return at;
}

}  // namespace

void appendescaped(std::string& out, std::string_view text) {
  std::size_t start = 0;
  for (std::size_t at = nextspecial(text, 0); at < text.size(); at = nextspecial(text, start)) {
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
