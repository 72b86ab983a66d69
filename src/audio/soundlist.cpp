#include "audio/soundlist.h"

#include <algorithm>
#include <cctype>
#include <cstdlib>
#include <vector>

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

std::vector<std::string> soundlines() {
  std::vector<std::string> lines;
  for (const CueRow& row : cuetable()) lines.push_back(lineof(row));
  for (const AmbienceRow& row : ambiencetable()) lines.push_back(lineof(row));
  return lines;
}

}  // namespace

std::string soundlist() {
  std::string text;
  for (const std::string& line : soundlines()) text += line + "\r\n";
  text.resize(text.size() - 2);
  return text;
}

// In a narrow window a line is shown in parts, and of those only the first has its name.
void tosoundline(Game& game, std::string_view text) {
  if (game.soundlisted < 0) return;
  const int before = game.soundlisted;
  int nearest = -1;
  int number = 0;
  for (const std::string& line : soundlines()) {
    const bool nearer = nearest < 0 || std::abs(number - before) < std::abs(nearest - before);
    if (nearer && line.find(text) != std::string::npos) nearest = number;
    ++number;
  }
  if (nearest >= 0) game.soundlisted = nearest;
}

void playsoundline(Game& game) {
  if (game.soundlisted < 0) return;
  const auto line = static_cast<std::size_t>(game.soundlisted);
  const std::size_t cues = cuetable().size();
  if (line < cues) return playcue(game, cuetable()[line].id);
  setambience(game, ambiencetable()[line - cues].name);
}

}  // namespace duskmarch
