#include "values/scriptlines.h"

#include <array>
#include <bit>
#include <cstdint>
#include <cstring>

namespace duskmarch {

namespace {

constexpr std::string_view special = "\\\t\r\n";
constexpr std::string_view letters = "\\trn";

// By byte: the letter that stands for it after a backslash; 0 for plain ones.
constexpr auto letterof = [] {
  std::array<char, 256> table{};
  for (std::size_t n = 0; n < special.size(); ++n) {
    table[static_cast<unsigned char>(special[n])] = letters[n];
  }
  return table;
}();

char letterfor(char byte) {
  return letterof[static_cast<unsigned char>(byte)];
}

using Block = std::uint64_t;  // eight bytes looked at together: most of a text is plain

constexpr Block everybyte(unsigned char byte) {
  return ~Block{0} / 255 * byte;
}

// The bytes, by their highest bits, that may be a backslash or a control character: all that are,
// and now and then a plain one beside them.
Block suspects(const char* bytes) {
  Block block = 0;
  std::memcpy(&block, bytes, sizeof block);
  const Block nobackslash = block ^ everybyte('\\');
  const Block controls = (block - everybyte(' ')) & ~block;
  const Block backslashes = (nobackslash - everybyte(1)) & ~nobackslash;
  return (controls | backslashes) & everybyte(0x80);
}

// How many bytes stand before the first suspect.
std::size_t bytesbefore(Block suspect) {
  const bool littleendian = std::endian::native == std::endian::little;
  return static_cast<std::size_t>(littleendian ? std::countr_zero(suspect)
                                               : std::countl_zero(suspect)) /
         8;
}

constexpr std::size_t stretch = 4 * sizeof(Block);

// Whether a stretch has nothing to look at more closely. The compiler takes it in a few steps.
bool isplain(const char* bytes) {
  unsigned char found = 0;
  for (std::size_t n = 0; n < stretch; ++n) {
    const auto byte = static_cast<unsigned char>(bytes[n]);
    const bool special = byte < ' ' || byte == '\\';
    found = static_cast<unsigned char>(found | static_cast<unsigned char>(special));
  }
  return found == 0;
}

// Where the next byte that needs escaping stands, from `at` on.
std::size_t nextspecial(std::string_view text, std::size_t at) {
  while (at + stretch <= text.size() && isplain(text.data() + at)) at += stretch;
  while (at + sizeof(Block) <= text.size()) {
    const Block suspect = suspects(text.data() + at);
    if (suspect == 0) {
      at += sizeof(Block);
      continue;
    }
    at += bytesbefore(suspect);
    if (letterfor(text[at]) != 0) return at;
    ++at;
  }
  while (at < text.size() && letterfor(text[at]) == 0) ++at;
  return at;
}

}  // namespace

void appendescaped(std::string& out, std::string_view text) {
  std::size_t start = 0;
  for (std::size_t at = nextspecial(text, 0); at < text.size(); at = nextspecial(text, start)) {
    out.append(text, start, at - start);
    std::array<char, 8> run;  // line breaks come in pairs, and often in two
    std::size_t size = 0;
    for (; size < run.size() && at < text.size() && letterfor(text[at]) != 0; ++at) {
      run[size++] = '\\';
      run[size++] = letterfor(text[at]);
    }
    out.append(run.data(), size);
    start = at;
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
