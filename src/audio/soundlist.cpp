#include "audio/soundlist.h"

#include <algorithm>
#include <cctype>

#include "audio/cues.h"
#include "audio/cuetable.h"

namespace duskmarch {
namespace {

// "Gun fired:"
std::string headingof(std::string_view name) {
  std::string heading = std::string(name) + ":";
  std::ranges::replace(heading, '-', ' ');
  heading.front() = static_cast<char>(std::toupper(static_cast<unsigned char>(heading.front())));
  return heading;
}

template <class Row>
std::string lineof(const Row& row) {
  return headingof(row.name) + " " + std::string(row.meaning) + ".";
}

// The names in the order of the lines.
std::string_view nameat(std::size_t line) {
  const std::size_t cues = cuetable().size();
  return line < cues ? cuetable()[line].name : ambiencetable()[line - cues].name;
}

}  // namespace

std::string soundlist() {
  std::string text;
  for (const CueRow& row : cuetable()) text += lineof(row) + "\r\n";
  for (const AmbienceRow& row : ambiencetable()) text += lineof(row) + "\r\n";
  text.resize(text.size() - 2);
  return text;
}

void tosoundline(Game& game, std::string_view text) {
  if (game.soundlisted < 0) return;
  for (std::size_t line = 0; line < cuetable().size() + ambiencetable().size(); ++line) {
    if (text.starts_with(headingof(nameat(line)))) game.soundlisted = static_cast<int>(line);
  }
}

void playsoundline(Game& game) {
  if (game.soundlisted < 0) return;
  const auto line = static_cast<std::size_t>(game.soundlisted);
  if (line >= cuetable().size()) return setambience(game, nameat(line));
  playcue(game, cuetable()[line].id);
}

}  // namespace duskmarch
