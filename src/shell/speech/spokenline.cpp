#include "shell/speech/spokenline.h"

#include <cmath>
#include <string>

#include "values/utf8.h"

namespace duskmarch {

namespace {

constexpr Colour black{0, 0, 0};
constexpr Colour white{255, 255, 255};
constexpr int lineheight = 40;
constexpr int lastabovemap = 1;  // the index of the last line that leaves the map alone

void paintline(Canvas& canvas, int index, std::string_view words) {
  const int top = lineheight * index + 15;
  if (index > lastabovemap) canvas.fill({0, top, canvas.width(), top + lineheight}, black);
  canvas.text({.x = 5, .y = top, .font = "Arial", .points = 28, .colour = white, .words = words});
}

}  // namespace

// Wrapped by its number of characters.
void repaintspokenline(Game& game) {
  Canvas* canvas = game.desktop.window.spokenline();
  if (canvas == nullptr) return;
  canvas->fill({0, 0, canvas->width(), mapstop}, black);
  const double linelength = canvas->width() / 28.0 * 1.6;
  const auto length = static_cast<double>(codepoints(game.spokenline));
  const auto shown = static_cast<std::size_t>(std::nearbyint(linelength));
  for (int i = 0; i <= length / linelength && lineheight * i + 15 <= canvas->height(); ++i) {
    if (game.mapuncovered && i > lastabovemap) break;
    const auto first = static_cast<std::size_t>(std::nearbyint(i * linelength));
    paintline(*canvas, i, codepointrange(game.spokenline, first, shown));
    game.printedlines = i;
  }
}

void paintspokenline(Game& game, std::string_view text) {
  game.spokenline = text;
  game.mapuncovered = false;
  repaintspokenline(game);
}

void uncovermap(Game& game) {
  game.mapuncovered = true;
  if (game.printedlines > lastabovemap) repaintspokenline(game);
}

}  // namespace duskmarch
