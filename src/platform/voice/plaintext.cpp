#include "platform/voice/plaintext.h"

#include <cstddef>

#include "platform/voice/characternames.h"
#include "values/utf8.h"

namespace duskmarch {
namespace {

bool sayable(char32_t code) {
  return code == '\n' || printable(code);
}

}  // namespace

std::string plaintext(std::string_view text) {
  std::string plain;
  plain.reserve(text.size());
  for (std::size_t at = 0; at < text.size();) {
    const CodePoint point = codepointat(text, at);
    if (sayable(point.value)) {
      plain.append(text, at, point.size);
    } else {
      plain.push_back(' ');
    }
    at += point.size;
  }
  return plain;
}

std::string sayabletext(std::string_view text) {
  std::string plain = plaintext(text);
  if (plain.empty()) return plain;
  const CodePoint first = codepointat(plain, 0);
  if (first.size != plain.size()) return plain;
  for (const auto& [character, name] : characternames) {
    if (character == first.value) return std::string(name);
  }
  return plain;
}

}  // namespace duskmarch
