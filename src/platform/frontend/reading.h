// What is told of a page, or of a field in a box, when its caret has moved; and what an arrow
// answers in a box.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "game.h"

namespace duskmarch {

// Where the caret of a page stands. A line is what is shown as one, part of a long paragraph maybe.
struct CaretPlace {
  int linenumber = 0;  // any count that tells lines apart
  std::string line;
  std::size_t column = 0;  // bytes of the line before the caret
};

// What is read when `press` has taken the caret from `before` to `now`: the line, for End and
// the keys that go by lines, and wherever the caret came to another one or could not move; else the
// character to its right, or with Ctrl the word. Nothing for a key that moves no caret; an empty
// text for an empty line and at the end of one.
std::optional<std::string> readmove(KeyPress press, const CaretPlace& before,
                                    const CaretPlace& now);

// The same of a field in a box, whose caret stood after `before` bytes of `text` and now stands
// after `now`: the character to its right, or with Ctrl the word; the whole text at its end, or
// where the caret could not move. Nothing for a key that moves no caret.
std::optional<std::string> readfield(KeyPress press, std::string_view text, std::size_t before,
                                     std::size_t now);

// What a key answers in a box in which nothing is typed yet; empty for a key that answers nothing.
// With Ctrl or Alt an arrow is the system's.
std::string_view answerof(KeyPress press, const ArrowAnswers& arrows);

}  // namespace duskmarch
