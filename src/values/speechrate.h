// How fast the voice speaks.
#pragma once

namespace duskmarch::speechrate {

inline constexpr int slowest = 1;
inline constexpr int fastest = 10;
inline constexpr int usual = 2;

}  // namespace duskmarch::speechrate
