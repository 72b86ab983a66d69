// Facts about Unicode's characters, for utf8.cpp: rows in the order of their code points.
#pragma once

#include <cstdint>
#include <span>

namespace duskmarch::unicode {

// Every `step`th from `first` to `last` is, whatever its letter case, what lies `distance` further.
struct Folding {
  char32_t first;
  char32_t last;
  std::uint32_t step;
  std::int32_t distance;
};
extern const std::span<const Folding> foldings;

struct Range {
  char32_t first;
  char32_t last;
};
extern const std::span<const Range> printable;

}  // namespace duskmarch::unicode
