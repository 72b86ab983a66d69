// What every window does alike with keys and typed texts.
#include <string>
#include <tuple>
#include <vector>

#include <gtest/gtest.h>

#include "platform/frontend/heldkeys.h"
#include "platform/frontend/keyplaces.h"
#include "platform/frontend/reading.h"
#include "platform/frontend/typed.h"
#include "shell/speech/keycodes.h"

namespace duskmarch {
namespace {

TEST(KeyPlaces, KnowPunctuationAndLetters) {
  EXPECT_EQ(keyatplace(0x1B), key::rightbracket);
  EXPECT_EQ(keyatplace(0x1C), 0);  // Enter
  EXPECT_EQ(letteratplace(0x10), 'Q');
  EXPECT_EQ(letteratplace(0x31), 'N');
  EXPECT_EQ(letteratplace(0x33), 0);  // beyond the M
  EXPECT_TRUE(companionplace(0x3A));
}

TEST(HeldKeys, AReleaseAndAPressInOneMomentAreNoPress) {
  HeldKeys keys;
  EXPECT_FALSE(keys.repeats(36, 3, false));
  keys.released(36, 1000);
  EXPECT_TRUE(keys.repeats(36, 1000, false));
  EXPECT_TRUE(keys.repeats(36, 1004, false));
  EXPECT_FALSE(keys.repeats(36, 1006, false));
  EXPECT_FALSE(keys.repeats(65, 1000, false));
  EXPECT_TRUE(keys.repeats(65, 5000, true));
  keys.released(36, 0);  // by a program that presses keys without a time
  EXPECT_FALSE(keys.repeats(36, 0, false));
}

TEST(Boxes, ReadWhatTheCaretComesTo) {
  const std::string text = "over żółw";
  for (const auto& [press, before, now, read] :
       std::vector<std::tuple<KeyPress, std::size_t, std::size_t, std::optional<std::string>>>{
           {{.keycode = key::left}, 6, 5, "ż"},
           {{.keycode = key::left, .shift = modifier::ctrl}, 7, 5, "żółw"},
           {{.keycode = key::right}, 11, 12, text},
           {{.keycode = key::home}, 0, 0, text},
           {{.keycode = key::up}, 3, 3, text},
           {{.keycode = key::shift}, 3, 3, std::nullopt}}) {
    EXPECT_EQ(readfield(press, text, before, now), read) << press.keycode;
  }
}

TEST(Boxes, AreAnsweredByArrowsAlone) {
  const ArrowAnswers arrows = {.left = "w", .up = "n", .right = "e", .down = "s"};
  EXPECT_EQ(answerof({.keycode = key::left}, arrows), "w");
  EXPECT_EQ(answerof({.keycode = key::down, .shift = modifier::shift}, arrows), "s");
  EXPECT_EQ(answerof({.keycode = key::down, .shift = modifier::ctrl}, arrows), "");
  EXPECT_EQ(answerof({.keycode = key::up, .shift = modifier::alt}, arrows), "");
  EXPECT_EQ(answerof({.keycode = key::up}, {}), "");
}

TEST(Difference, IsWhatWasTypedOrTakenAway) {
  EXPECT_EQ(difference("ab", "abc"), "c");
  EXPECT_EQ(difference("aab", "aaab"), "a");
  EXPECT_EQ(difference("abc", "ac"), "b");
  EXPECT_EQ(difference("one two", "x"), "x");
  EXPECT_EQ(difference("é", "è"), "è");  // which share their first byte
  EXPECT_EQ(difference("aé", "a©"), "©");
  EXPECT_EQ(difference("é", "©"), "©");  // which share their last
  EXPECT_EQ(difference("same", "same"), "");
}

}  // namespace
}  // namespace duskmarch
