// Names in, one joined sentence out: the only place that knows how a list is spoken.
#pragma once

#include <span>
#include <string>
#include <string_view>

namespace duskmarch {

// "A, B and C" followed by `singular` for one name and by `plural` for more; no names give an
// empty text.
std::string joinnames(std::span<const std::string> names, std::string_view singular,
                      std::string_view plural);
inline std::string joinnames(std::span<const std::string> names, std::string_view ending) {
  return joinnames(names, ending, ending);
}

}  // namespace duskmarch
