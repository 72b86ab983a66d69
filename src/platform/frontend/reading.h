// What is told of a page when its caret has moved: a line or a character.
#pragma once

#include <optional>
#include <string>

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

}  // namespace duskmarch
