#include "values/crashtrace.h"

#include <algorithm>
#include <string>

#include "values/scriptlines.h"

namespace duskmarch {

void CrashTrace::Line::assign(std::string_view words) {
  size = std::min(words.size(), text.size() - 1);
  std::copy_n(words.begin(), size, text.begin());
  text[size++] = '\n';
}

void CrashTrace::begin(std::string_view version, std::uint32_t seed) {
  heading_.assign("# Duskmarch " + std::string(version) + ": the last keys before a crash\nseed " +
                  std::to_string(seed));
  count_ = 0;
}

void CrashTrace::key(int keycode, int shift) {
  lines_[count_++ % kept].assign("key " + std::to_string(keycode) + " " + std::to_string(shift));
}

void CrashTrace::answer(std::string_view typed) {
  const Line opened = count_ > 0 ? lines_[(count_ - 1) % kept] : Line();
  if (count_ > 0) --count_;
  lines_[count_++ % kept].assign(typed.empty() ? "cancel" : "answer " + escaped(typed));
  if (opened.size > 0) lines_[count_++ % kept] = opened;
}

}  // namespace duskmarch
