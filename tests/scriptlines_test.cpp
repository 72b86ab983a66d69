// Texts on one line: whatever they hold, and wherever in them.
#include "values/scriptlines.h"

#include <random>

#include <gtest/gtest.h>

namespace duskmarch {
namespace {

std::string onebyone(std::string_view text) {
  std::string out;
  for (const char c : text) {
    switch (c) {
      case '\\': out += "\\\\"; break;
      case '\t': out += "\\t"; break;
      case '\r': out += "\\r"; break;
      case '\n': out += "\\n"; break;
      default: out += c;
    }
  }
  return out;
}

TEST(Escape, FindsWhatIsSpecialBesideAnythingElse) {
  constexpr std::string_view bytes = "\\\t\r\nabc \x1F[]\x7F\x80\xA0\xDC\xFF";
  std::mt19937 random(1);
  for (int n = 0; n < 20'000; ++n) {
    std::string text(random() % 40, 'x');
    for (char& c : text) {
      if (random() % 3 == 0) c = bytes[random() % bytes.size()];
    }
    ASSERT_EQ(escaped(text), onebyone(text));
    ASSERT_EQ(unescaped(escaped(text)), text);
  }
}

TEST(Escape, ABackslashBeforeAnythingElseStandsForItself) {
  EXPECT_EQ(unescaped("\\x\\\\n\\"), "\\x\\n\\");
}

}  // namespace
}  // namespace duskmarch
