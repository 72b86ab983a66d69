// The caret of a text page: what the arrow keys reach, line by line and character by character.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace duskmarch {

class Caret {
 public:
  // Starts at the top of a text whose lines are parted by CR LF.
  explicit Caret(std::string_view text = "");

  // Moves by a key and tells what came under the caret: for an arrow up or down, a page up or down
  // (all of the text is one page) and End the line, for left, right and Home the character, or the
  // line when it is another one or the caret could not move. Other keys tell nothing.
  std::optional<std::string_view> move(int keycode);

 private:
  std::string_view line() const { return lines_[line_]; }
  std::string_view moveline(bool down);
  std::string_view movepage(std::size_t line);
  std::string_view moveto(std::size_t column);
  std::string_view movecharacter(bool forward);

  std::vector<std::string> lines_;
  std::size_t line_ = 0;
  std::size_t column_ = 0;  // in code points
};

}  // namespace duskmarch
