#include "platform/voice/plaintext.h"

#include <algorithm>
#include <clocale>
#include <cstddef>
#include <cwctype>

namespace duskmarch {
namespace {

// A character and its length in bytes; length 0 where the bytes are none.
struct Character {
  char32_t code = 0;
  std::size_t size = 0;
};

Character characterat(std::string_view text, std::size_t at) {
  const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
  const unsigned lead = byte(at);
  if (lead < 0x80) return {lead, 1};
  if (lead < 0xC2 || lead > 0xF4) return {};
  const std::size_t size = lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
  if (at + size > text.size()) return {};
  char32_t code = lead & (0x7FU >> size);
  for (std::size_t i = at + 1; i < at + size; ++i) {
    if ((byte(i) & 0xC0U) != 0x80) return {};
    code = code << 6U | (byte(i) & 0x3FU);
  }
  const bool overlong = (size == 3 && code < 0x800) || (size == 4 && code < 0x10000);
  const bool surrogate = code >= 0xD800 && code < 0xE000;
  if (overlong || surrogate || code > 0x10FFFF) return {};
  return {code, size};
}

// Whether it is a character that Unicode has given a meaning other than to control something.
bool sayable(char32_t code) {
  if (code < 0x80) return code == '\n' || (code >= 0x20 && code != 0x7F);
  static const locale_t unicode = newlocale(LC_CTYPE_MASK, "C.UTF-8", nullptr);
  return unicode == nullptr || iswprint_l(static_cast<wint_t>(code), unicode) != 0;
}

}  // namespace

std::string plaintext(std::string_view text) {
  std::string plain;
  plain.reserve(text.size());
  for (std::size_t at = 0; at < text.size();) {
    const Character character = characterat(text, at);
    if (character.size > 0 && sayable(character.code)) {
      plain.append(text, at, character.size);
    } else {
      plain.push_back(' ');
    }
    at += std::max<std::size_t>(character.size, 1);
  }
  return plain;
}

}  // namespace duskmarch
