// UTF-8 texts by code points.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace duskmarch {

struct CodePoint {
  char32_t value = 0;
  std::size_t size = 1;  // in bytes
};

// One beyond all code points is a stray byte, which equals only itself.
inline constexpr char32_t firststray = 0x110000;

// The code point that starts at `text[at]`.
CodePoint codepointat(std::string_view text, std::size_t at);
// The number of code points; a byte that belongs to none counts as one.
std::size_t codepoints(std::string_view text);
// Bytes of the code point that starts at `text[at]`; at least 1.
std::size_t codepointsize(std::string_view text, std::size_t at);
// `count` code points from code point `first` (from 0), fewer at the end of the text.
std::string_view codepointrange(std::string_view text, std::size_t first, std::size_t count);
// Whether Unicode has given it a meaning, other than to control something or to end a line.
bool printable(char32_t letter);
// Whether two names are the same but for letter case, in every script that has one; each letter by
// itself, so that "ß" is not "SS".
bool equalignoringcase(std::string_view one, std::string_view other);

}  // namespace duskmarch
