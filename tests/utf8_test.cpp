#include "values/utf8.h"

#include <gtest/gtest.h>

namespace duskmarch {
namespace {

TEST(Utf8, CountsCodePointsAndStrayBytes) {
  EXPECT_EQ(codepoints("aé€😀"), 4u);
  EXPECT_EQ(codepoints("\x80\xC0\xFF"), 3u);      // bytes that begin nothing
  EXPECT_EQ(codepoints("\xE2\x82"), 2u);          // cut short
  EXPECT_EQ(codepoints("\xC0\xAF"), 2u);          // longer than need be
  EXPECT_EQ(codepoints("\xED\xA0\x80"), 3u);      // half of a pair
  EXPECT_EQ(codepoints("\xF4\x90\x80\x80"), 4u);  // beyond the last
}

TEST(Utf8, CutsBetweenCodePoints) {
  EXPECT_EQ(codepointrange("aé€😀b", 1, 2), "é€");
  EXPECT_EQ(codepointrange("aé€😀b", 3, 9), "😀b");
  EXPECT_EQ(codepointrange("aé€😀b", 6, 1), "");
}

TEST(Utf8, NamesAreEqualWhateverTheirLetterCase) {
  EXPECT_TRUE(equalignoringcase("PersonMan", "personMAN"));
  EXPECT_TRUE(equalignoringcase("ÉLODIE", "élodie"));
  EXPECT_TRUE(equalignoringcase("Дмитрий", "ДМИТРИЙ"));
  EXPECT_TRUE(equalignoringcase("ΑΛΕΞΗΣ", "Αλεξης"));
  EXPECT_FALSE(equalignoringcase("Elodie", "Élodie"));
  EXPECT_FALSE(equalignoringcase("Ann", "Anna"));
  EXPECT_FALSE(equalignoringcase("\xE9", "\xC9"));  // stray bytes have no case
}

}  // namespace
}  // namespace duskmarch
