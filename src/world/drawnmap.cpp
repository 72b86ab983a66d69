#include "world/drawnmap.h"

#include <array>
#include <string>
#include <string_view>

#include "world/mapspeech.h"
#include "world/narration.h"
#include "world/tables.h"
#include "world/whostands.h"

namespace duskmarch {

namespace {

constexpr Colour black{0, 0, 0};
constexpr Colour white{255, 255, 255};
constexpr Colour magenta{255, 0, 255};
constexpr Colour green{0, 255, 0};
constexpr Colour yellow{255, 255, 0};
constexpr Colour red{255, 0, 0};

constexpr int tilesize = 100;
constexpr int margin = 10;  // right and below of the map
constexpr int mobrow = 22;
constexpr int itemrow = 14;

struct Point {
  int x = 0;
  int y = 0;
};

Point corneroftile(int x, int y) {
  return {50 + (x - 1) * tilesize, 150 + (y - 1) * tilesize};
}

void write(Canvas& canvas, Point place, const Rect& within, std::string_view words,
           Colour colour = white) {
  canvas.text({.x = place.x,
               .y = place.y,
               .font = "MS Sans Serif",
               .points = 8,
               .colour = colour,
               .words = words,
               .within = within});
}

// From `place` to the right edge of its tile.
Rect insidetile(Point place, Point corner) {
  return {place.x, place.y, corner.x + tilesize - 1, place.y + tilesize};
}

void outline(Canvas& canvas, Point corner, int inset, Colour colour = white) {
  canvas.outline({corner.x + inset, corner.y + inset, corner.x + tilesize - inset,
                  corner.y + tilesize - inset},
                 colour);
}

void drawtile(Canvas& canvas, const Game& game, int x, int y) {
  const Point corner = corneroftile(x, y);
  if (x == 1) {
    const Rect margin = {0, corner.y, corner.x - 2, corner.y + tilesize};
    write(canvas, {corner.x - 15, corner.y + 50}, margin, std::to_string(y));
  }
  if (y == 1) {
    const Rect margin = {corner.x, mapstop, corner.x + tilesize, corner.y - 1};
    write(canvas, {corner.x + 50, corner.y - 15}, margin, saycoords(x));
  }
  outline(canvas, corner, 0);
  if (const std::string& tags = tiletags(game, x, y); !tags.empty()) {
    outline(canvas, corner, 2);
    outline(canvas, corner, 4);
    const Point place = {corner.x + 40, corner.y + 87};
    write(canvas, place, {corner.x + 5, corner.y, corner.x + 95, corner.y + 96}, tags);
  }
  if (x == game.cursorx && y == game.cursory) outline(canvas, corner, 3, magenta);
}

void drawgrid(Canvas& canvas, const Game& game) {
  for (int x = 1; x <= game.mapwidth; ++x) {
    for (int y = 1; y <= game.mapheight; ++y) drawtile(canvas, game, x, y);
  }
}

Colour colouroftype(int type) {
  static constexpr auto colours = std::to_array<Colour>({
      white,
      {100, 255, 100},
      {200, 100, 100},
      {255, 180, 130},
      {255, 100, 180},
  });
  static_assert(colours.size() == mobtype::last + 1, "each type has its colour");
  return type >= 0 && type <= mobtype::last ? colours[static_cast<std::size_t>(type)] : white;
}

Colour colourofside(const Game& game, int slot) {
  const int side = game.mob(slot).aliance;
  if (side == aliance::enemies) return red;
  if (side != aliance::heroes) return white;
  return slot == game.selected ? yellow : green;
}

std::string modifier(Hundredths amount) {
  if (amount == Hundredths{}) return "";
  return sentence({amount > Hundredths{} ? "+" : "", amount.text()});
}

void drawmob(Canvas& canvas, const Game& game, int slot) {
  const Mob& mob = game.mob(slot);
  const auto row = menhere(game, slot, mob.mobx, mob.moby, -1, "").truncated();
  const Point corner = corneroftile(mob.mobx, mob.moby);
  const Point place = {corner.x + 5, corner.y + 5 + (static_cast<int>(row) - 1) * mobrow};
  const Point below = {place.x + 10, place.y + 10};
  const Colour colour = colouroftype(mob.mobtype);
  write(canvas, place, insidetile(place, corner),
        mob.mobname + " (" + std::to_string(mob.health) + (mob.engaged == 1 ? ") *E*" : ")") +
            mob.status,
        colour);
  write(canvas, below, insidetile(below, corner),
        "F=" + std::to_string(mob.fight) + modifier(calcfight2(game, slot)) + " A=" + mob.action,
        colour);
  write(canvas, place, insidetile(place, corner), mob.mobname, colourofside(game, slot));
}

void drawitem(Canvas& canvas, const Game& game, const Item& item) {
  const int row = itemshere(game, slotof(game, item), item.itemx, item.itemy);
  const Point corner = corneroftile(item.itemx, item.itemy);
  const Point place = {corner.x + 5, corner.y + 55 + (row - 1) * itemrow};
  write(canvas, place, insidetile(place, corner), "[" + item.itemname + "]");
}

}  // namespace

void drawscreen(Game& game) {
  if (game.mapwidth == 0) return;
  const Point end = corneroftile(game.mapwidth + 1, game.mapheight + 1);
  Canvas* canvas = game.desktop.window.map(end.x + margin, end.y + margin);
  if (canvas == nullptr) return;
  canvas->fill({0, mapstop, canvas->width(), canvas->height()}, black);
  if (game.menuname != screen::map && game.menuname != screen::options) return;
  drawgrid(*canvas, game);
  for (const Mob& mob : standing(game)) drawmob(*canvas, game, slotof(game, mob));
  for (const Item& item : furniture(game)) drawitem(*canvas, game, item);
}

}  // namespace duskmarch
