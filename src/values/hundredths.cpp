#include "values/hundredths.h"

#include <cstdlib>

namespace duskmarch {

std::string Hundredths::text() const {
  const std::int64_t size = std::abs(value_);
  std::string text = value_ < 0 ? "-" : "";
  text += std::to_string(size / 100);
  if (const std::int64_t rest = size % 100; rest != 0) {
    text += '.';
    text += static_cast<char>('0' + rest / 10);
    if (rest % 10 != 0) text += static_cast<char>('0' + rest % 10);
  }
  return text;
}

}  // namespace duskmarch
