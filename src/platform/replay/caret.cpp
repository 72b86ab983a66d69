#include "platform/replay/caret.h"

#include <algorithm>
#include <utility>

#include "shell/speech/keycodes.h"
#include "values/utf8.h"

namespace duskmarch {

Caret::Caret(std::string_view text) {
  for (std::size_t start = 0; start <= text.size();) {
    const std::size_t end = std::min(text.find("\r\n", start), text.size());
    lines_.emplace_back(text.substr(start, end - start));
    start = end + 2;
  }
  if (lines_.empty()) lines_.emplace_back();
}

std::optional<std::string_view> Caret::move(int keycode) {
  switch (keycode) {
    case key::up: return moveline(false);
    case key::down: return moveline(true);
    case key::left: return movecharacter(false);
    case key::right: return movecharacter(true);
    case key::home: return moveto(0);
    case key::end: column_ = codepoints(line()); return line();
    case key::pageup: return movepage(0);
    case key::pagedown: return movepage(lines_.size() - 1);
    default: return std::nullopt;
  }
}

std::string_view Caret::moveline(bool down) {
  if (down && line_ + 1 < lines_.size()) ++line_;
  if (!down && line_ > 0) --line_;
  column_ = std::min(column_, codepoints(line()));
  return line();
}

std::string_view Caret::movepage(std::size_t line) {
  line_ = line;
  column_ = std::min(column_, codepoints(lines_[line_]));
  return lines_[line_];
}

std::string_view Caret::moveto(std::size_t column) {
  const bool moved = std::exchange(column_, column) != column;
  return moved ? codepointrange(line(), column_, 1) : line();
}

std::string_view Caret::movecharacter(bool forward) {
  if (forward ? column_ < codepoints(line()) : column_ > 0) {
    return moveto(forward ? column_ + 1 : column_ - 1);
  }
  if (forward && line_ + 1 < lines_.size()) {
    ++line_;
    column_ = 0;
  } else if (!forward && line_ > 0) {
    --line_;
    column_ = codepoints(line());
  }
  return line();
}

}  // namespace duskmarch
