#include "platform/frontend/typed.h"

#include <algorithm>

namespace duskmarch {

namespace {

bool insidecodepoint(std::string_view text, std::size_t at) {
  return at < text.size() && (static_cast<unsigned char>(text[at]) & 0xC0U) == 0x80U;
}

std::size_t samestart(std::string_view one, std::string_view other) {
  const auto differ = std::ranges::mismatch(one, other);
  auto same = static_cast<std::size_t>(differ.in1 - one.begin());
  while (same > 0 && (insidecodepoint(one, same) || insidecodepoint(other, same))) --same;
  return same;
}

std::size_t sameend(std::string_view one, std::string_view other) {
  const std::size_t most = std::min(one.size(), other.size());
  std::size_t same = 0;
  while (same < most && one[one.size() - same - 1] == other[other.size() - same - 1]) ++same;
  while (same > 0 && insidecodepoint(one, one.size() - same)) --same;
  return same;
}

}  // namespace

std::string_view difference(std::string_view before, std::string_view now) {
  const std::size_t start = samestart(before, now);
  before.remove_prefix(start);
  now.remove_prefix(start);
  const std::size_t end = sameend(before, now);
  before.remove_suffix(end);
  now.remove_suffix(end);
  return now.empty() ? before : now;
}

}  // namespace duskmarch
