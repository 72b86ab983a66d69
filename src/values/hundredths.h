// Exact decimals with two places, for effective fighting values and crowd weights.
#pragma once

#include <compare>
#include <cstdint>
#include <string>

namespace duskmarch {

class Hundredths {
 public:
  constexpr Hundredths() = default;
  static constexpr Hundredths whole(std::int64_t value) { return Hundredths(value * 100); }
  static constexpr Hundredths of(std::int64_t hundredths) { return Hundredths(hundredths); }

  constexpr std::int64_t hundredths() const { return value_; }
  // The whole number left when the fraction is cut off towards zero.
  constexpr std::int64_t truncated() const { return value_ / 100; }
  // Plain decimal: "2", "1.25", "-3.2", "0.75".
  std::string text() const;

  constexpr Hundredths operator-() const { return Hundredths(-value_); }
  constexpr Hundredths& operator+=(Hundredths other) {
    value_ += other.value_;
    return *this;
  }
  constexpr Hundredths& operator-=(Hundredths other) {
    value_ -= other.value_;
    return *this;
  }
  // The product, cut off to two places towards zero.
  constexpr Hundredths& operator*=(Hundredths other) {
    value_ = value_ * other.value_ / 100;
    return *this;
  }
  friend constexpr Hundredths operator+(Hundredths a, Hundredths b) { return a += b; }
  friend constexpr Hundredths operator-(Hundredths a, Hundredths b) { return a -= b; }
  friend constexpr Hundredths operator*(Hundredths a, Hundredths b) { return a *= b; }
  constexpr auto operator<=>(const Hundredths&) const = default;  // NOLINT(modernize-use-nullptr)

 private:
  constexpr explicit Hundredths(std::int64_t value) : value_(value) {}
  std::int64_t value_ = 0;
};

}  // namespace duskmarch
