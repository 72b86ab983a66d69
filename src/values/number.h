// A whole number that knows whether it was ever set: a saved game writes one that never was as an
// empty line, and every rule counts it as 0. Copies keep that knowledge; assigning a value and
// arithmetic set it. Values are held within plus or minus 1,000,000,000, the range of a saved
// game, so that sums of a few of them fit an int.
#pragma once

#include <algorithm>
#include <cstdint>

namespace duskmarch {

class Number {
 public:
  static constexpr std::int64_t limit = 1'000'000'000;

  constexpr Number() = default;
  constexpr Number(std::int64_t value)  // NOLINT(google-explicit-constructor): reads as a number
      : value_(static_cast<int>(std::clamp(value, -limit, limit))), isset_(true) {}

  constexpr operator int() const { return value_; }  // NOLINT(google-explicit-constructor)
  constexpr bool isset() const { return isset_; }

  constexpr Number& operator+=(std::int64_t amount) { return *this = Number(value_ + amount); }
  constexpr Number& operator-=(std::int64_t amount) { return *this = Number(value_ - amount); }

 private:
  int value_ = 0;
  bool isset_ = false;
};

}  // namespace duskmarch
