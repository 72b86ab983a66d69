#include "platform/voice/plaintext.h"

#include <clocale>
#include <cstddef>
#include <cwctype>

#include "values/utf8.h"

namespace duskmarch {
namespace {

// Whether it is a character that Unicode has given a meaning other than to control something.
bool sayable(char32_t code) {
  if (code >= firststray) return false;
  if (code < 0x80) return code == '\n' || (code >= 0x20 && code != 0x7F);
  static const locale_t unicode = newlocale(LC_CTYPE_MASK, "C.UTF-8", nullptr);
  return unicode == nullptr || iswprint_l(static_cast<wint_t>(code), unicode) != 0;
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

}  // namespace duskmarch
