#include "values/utf8.h"

#include <algorithm>
#include <cstdint>
#include <span>

#include "values/unicodetables.h"

namespace duskmarch {
namespace {

unsigned byteat(std::string_view text, std::size_t at) {
  return static_cast<unsigned char>(text[at]);
}

// The row that holds `letter`, of rows in order; null when none does.
template <class Row>
const Row* rowof(std::span<const Row> rows, char32_t letter) {
  const auto row = std::ranges::lower_bound(rows, letter, {}, &Row::last);
  return row != rows.end() && row->first <= letter ? &*row : nullptr;
}

char32_t foldcase(char32_t letter) {
  const unicode::Folding* row = rowof(unicode::foldings, letter);
  if (row == nullptr || (letter - row->first) % row->step != 0) return letter;
  return static_cast<char32_t>(static_cast<std::int32_t>(letter) + row->distance);
}

}  // namespace

CodePoint codepointat(std::string_view text, std::size_t at) {
  const unsigned lead = byteat(text, at);
  if (lead < 0x80) return {lead, 1};
  const CodePoint stray = {firststray + lead, 1};
  const std::size_t size = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
  if (lead < 0xC2 || lead > 0xF4 || size > text.size() - at) return stray;
  char32_t value = lead & (0x7Fu >> size);
  for (std::size_t n = 1; n < size; ++n) {
    const unsigned next = byteat(text, at + n);
    if (next >> 6 != 2) return stray;
    value = value << 6 | (next & 0x3Fu);
  }
  const bool toolong = size == 3 ? value < 0x800 : size == 4 && value < 0x10000;
  const bool surrogate = value >= 0xD800 && value <= 0xDFFF;
  if (toolong || surrogate || value > 0x10FFFF) return stray;
  return {value, size};
}

std::size_t codepointsize(std::string_view text, std::size_t at) {
  return codepointat(text, at).size;
}

std::size_t codepoints(std::string_view text) {
  std::size_t count = 0;
  for (std::size_t at = 0; at < text.size(); at += codepointsize(text, at)) ++count;
  return count;
}

std::string_view codepointrange(std::string_view text, std::size_t first, std::size_t count) {
  std::size_t begin = 0;
  for (; first > 0 && begin < text.size(); --first) begin += codepointsize(text, begin);
  std::size_t end = begin;
  for (; count > 0 && end < text.size(); --count) end += codepointsize(text, end);
  return text.substr(begin, end - begin);
}

bool printable(char32_t letter) {
  return rowof(unicode::printable, letter) != nullptr;
}

bool equalignoringcase(std::string_view one, std::string_view other) {
  std::size_t inone = 0;
  std::size_t inother = 0;
  while (inone < one.size() && inother < other.size()) {
    const CodePoint a = codepointat(one, inone);
    const CodePoint b = codepointat(other, inother);
    if (foldcase(a.value) != foldcase(b.value)) return false;
    inone += a.size;
    inother += b.size;
  }
  return inone == one.size() && inother == other.size();
}

}  // namespace duskmarch
