#include "platform/frontend/reading.h"

#include <algorithm>
#include <array>

#include "shell/speech/keycodes.h"
#include "values/utf8.h"

namespace duskmarch {

namespace {

constexpr std::array linekeys = {key::up, key::down, key::pageup, key::pagedown, key::end};
constexpr std::array characterkeys = {key::left, key::right, key::home};

template <std::size_t size>
bool isone(const std::array<int, size>& keys, int keycode) {
  return std::ranges::find(keys, keycode) != keys.end();
}

constexpr std::array fieldkeys = {key::left, key::right, key::up, key::down, key::home, key::end};

std::string righthand(std::string_view text, std::size_t caret, KeyPress press) {
  const std::string_view rest = text.substr(caret);
  const bool word = (press.shift & modifier::ctrl) != 0;
  const std::size_t space = std::min(rest.find(' '), rest.size());
  return std::string(word ? rest.substr(0, space) : codepointrange(rest, 0, 1));
}

}  // namespace

std::optional<std::string> readmove(KeyPress press, const CaretPlace& before,
                                    const CaretPlace& now) {
  const bool byline = isone(linekeys, press.keycode);
  if (!byline && !isone(characterkeys, press.keycode)) return std::nullopt;
  const bool sameline = before.linenumber == now.linenumber;
  if (byline || !sameline || before.column == now.column) return now.line;
  return righthand(now.line, now.column, press);
}

std::optional<std::string> readfield(KeyPress press, std::string_view text, std::size_t before,
                                     std::size_t now) {
  const bool moved = before != now;
  if (!moved && !isone(fieldkeys, press.keycode)) return std::nullopt;
  std::string came = moved ? righthand(text, now, press) : std::string();
  return came.empty() ? std::string(text) : came;
}

std::string_view answerof(KeyPress press, const ArrowAnswers& arrows) {
  if ((press.shift & (modifier::ctrl | modifier::alt)) != 0) return {};
  switch (press.keycode) {
    case key::left: return arrows.left;
    case key::up: return arrows.up;
    case key::right: return arrows.right;
    case key::down: return arrows.down;
    default: return {};
  }
}

}  // namespace duskmarch
