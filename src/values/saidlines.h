// The speech history: the newest line is line 1, line 999 the oldest kept.
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace duskmarch {

class SaidLines {
 public:
  static constexpr int oldest = 999;

  void remember(std::string_view text) {
    newest_ = (newest_ + 1) % oldest;
    lines_[newest_].assign(text);
  }
  // `age` from 1 to 999; a line not yet said is empty.
  const std::string& operator[](int age) const {
    return lines_[(newest_ + oldest - static_cast<std::size_t>(age - 1)) % oldest];
  }
  void clear() { lines_.fill({}); }

 private:
  std::array<std::string, oldest> lines_;
  std::size_t newest_ = 0;
};

}  // namespace duskmarch
