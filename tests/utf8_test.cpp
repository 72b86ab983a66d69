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

TEST(Utf8, PrintableIsWhatHasAMeaning) {
  for (const char32_t letter : U" Aß€界😀\u0301\u00A0\U0010FFFD") {
    EXPECT_EQ(printable(letter), letter != 0) << std::hex << static_cast<unsigned>(letter);
  }
  for (const char32_t code : {0x1F, 0x7F, 0x85, 0x378, 0x2028, 0xD800, 0xFFFF, 0x10FFFF}) {
    EXPECT_FALSE(printable(code)) << std::hex << static_cast<unsigned>(code);
  }
  EXPECT_FALSE(printable(firststray + 'A'));
}

TEST(Utf8, NamesAreEqualWhateverTheirLetterCase) {
  EXPECT_TRUE(equalignoringcase("PersonMan", "personMAN"));
  EXPECT_TRUE(equalignoringcase("ÉLODIE", "élodie"));
  EXPECT_TRUE(equalignoringcase("Дмитрий", "ДМИТРИЙ"));
  EXPECT_TRUE(equalignoringcase("ΑΛΕΞΗΣ", "Αλεξης"));  // with a sigma of its own at the end
  EXPECT_TRUE(equalignoringcase("GROẞE ŻÓŁĆ ǅ", "große żółć ǆ"));
  EXPECT_TRUE(equalignoringcase("Աստղիկ", "ԱՍՏՂԻԿ"));
  EXPECT_TRUE(equalignoringcase("ᲗᲐᲛᲐᲠ", "თამარ"));
  EXPECT_TRUE(equalignoringcase("ᎠᎡ", "ꭰꭱ"));
  EXPECT_TRUE(equalignoringcase("𐐀𐓀𞤀", "𐐨𐓨𞤢"));
  EXPECT_TRUE(equalignoringcase("IŞIL", "ışıl"));
  EXPECT_FALSE(equalignoringcase("Elodie", "Élodie"));
  EXPECT_FALSE(equalignoringcase("Ann", "Anna"));
  EXPECT_FALSE(equalignoringcase("Ĺ", "Ļ"));  // beside each other in the table
  EXPECT_FALSE(equalignoringcase("刘", "王"));
  EXPECT_FALSE(equalignoringcase("\xE9", "\xC9"));  // stray bytes have no case
}

}  // namespace
}  // namespace duskmarch
