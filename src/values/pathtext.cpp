#include "values/pathtext.h"

#include <cstdint>

namespace duskmarch {

std::filesystem::path pathof(std::string_view text) {
  return std::u8string(text.begin(), text.end());
}

std::string textof(const std::filesystem::path& path) {
  try {
    const std::u8string text = path.u8string();
    return {text.begin(), text.end()};
  } catch (const std::filesystem::filesystem_error&) {
    std::string text;
    for (const auto unit : path.native()) {
      text += static_cast<std::uint32_t>(unit) < 0x80 ? static_cast<char>(unit) : '?';
    }
    return text;
  }
}

}  // namespace duskmarch
