// The system's UTF-16 texts to and from the game's UTF-8. What is no proper text on one side
// becomes U+FFFD on the other.
#pragma once

#include <string>
#include <string_view>

namespace duskmarch {

std::wstring utf16(std::string_view text);
std::string utf8(std::wstring_view text);

}  // namespace duskmarch
