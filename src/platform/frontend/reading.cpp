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

std::string righthand(const CaretPlace& place, bool word) {
  const std::string_view rest = std::string_view(place.line).substr(place.column);
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
  return righthand(now, (press.shift & modifier::ctrl) != 0);
}

}  // namespace duskmarch
