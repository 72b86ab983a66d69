// The whole numbers that seed the game's generator.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace duskmarch {

// A whole number of any size, taken modulo 2^32, a negative one included; nothing for other texts.
inline std::optional<std::uint32_t> parseseed(std::string_view text) {
  const bool negative = text.starts_with('-');
  if (negative) text.remove_prefix(1);
  if (text.empty()) return std::nullopt;
  std::uint32_t number = 0;
  for (const char digit : text) {
    if (digit < '0' || digit > '9') return std::nullopt;
    number = number * 10 + static_cast<std::uint32_t>(digit - '0');
  }
  return negative ? 0 - number : number;
}

}  // namespace duskmarch
