// What onlookers see, laid out for windows of all sizes.
#include "platform/frontend/picture.h"

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "values/utf8.h"

namespace duskmarch {
namespace {

constexpr Colour white{255, 255, 255};
constexpr Colour red{255, 0, 0};

// Letters are half as wide as high.
class Paper : public Painter {
 public:
  struct Words {
    int x = 0;
    int y = 0;
    int pixels = 0;
    std::string text;
    bool operator==(const Words&) const = default;
  };

  void fill(const Rect& area, Colour colour) override {
    if (colour == red) reds.push_back(area);
  }
  void text(int x, int y, Lettering letters, Colour, std::string_view words) override {
    texts.push_back({x, y, letters.pixels, std::string(words)});
  }
  int width(Lettering letters, std::string_view words) override {
    return static_cast<int>(codepoints(words)) * letters.pixels / 2;
  }

  std::vector<Rect> reds;
  std::vector<Words> texts;
};

void PrintTo(const Paper::Words& words, std::ostream* out) {
  *out << words.x << ' ' << words.y << ' ' << words.pixels << ' ' << words.text;
}

// A map whose units are `scale` pixels, each `ratio` device pixels, painted.
template <typename Draw>
Paper painted(double scale, double ratio, Draw draw) {
  Picture picture;
  const int size = static_cast<int>(1000 * scale);
  picture.fit(size, mapstop + size, ratio);
  draw(*picture.map(1000, mapstop + 1000));
  Paper paper;
  picture.paint(paper);
  return paper;
}

Text name(int y, std::string words) {
  static std::vector<std::string> kept;
  kept.reserve(100);
  kept.push_back(std::move(words));
  return {.x = 100,
          .y = y,
          .font = "Sans",
          .points = 9,  // 12 units
          .colour = white,
          .words = kept.back(),
          .within = {100, y, 200, y + 100}};
}

TEST(Picture, OutlinesHoldBothCornersAtAnyScale) {
  for (const auto& [scale, ratio] : {std::pair{1.0, 1.0}, {0.5, 1.0}, {1.0, 2.0}, {3.0, 1.0}}) {
    const double pixels = scale * ratio;
    const int line = std::max(1, static_cast<int>(pixels));
    const Paper paper = painted(scale, ratio, [](Canvas& map) {
      map.outline({10, mapstop + 10, 110, mapstop + 60}, red);
    });
    Rect all = paper.reds.at(0);
    for (const Rect& side : paper.reds) {
      EXPECT_EQ(std::min(side.right - side.left, side.bottom - side.top), line);
      all.right = std::max(all.right, side.right);
      all.bottom = std::max(all.bottom, side.bottom);
    }
    EXPECT_EQ(all.left, 10 * pixels);
    EXPECT_EQ(all.right, 110 * pixels + line);
    EXPECT_EQ(all.bottom, (mapstop + 0) * ratio + 60 * pixels + line);
  }
}

TEST(Picture, FillsBelowTheSpokenLineReachTheWindowsEdges) {
  Picture picture;
  picture.fit(1003, 707, 1);
  Canvas& map = *picture.map(560, 660);
  map.fill({0, mapstop, map.width(), map.height()}, red);
  Paper paper;
  picture.paint(paper);
  EXPECT_EQ(paper.reds.at(0).top, mapstop);
  EXPECT_GE(paper.reds.at(0).right, 1003);
  EXPECT_GE(paper.reds.at(0).bottom, 707);
}

TEST(Picture, LettersShrinkToNinePixels) {
  const auto draw = [](Canvas& map) { map.text(name(mapstop + 200, "Ann")); };
  EXPECT_EQ(painted(2, 1, draw).texts, (std::vector<Paper::Words>{{200, 501, 24, "Ann"}}));
  EXPECT_EQ(painted(0.5, 1, draw).texts, (std::vector<Paper::Words>{{50, 201, 9, "Ann"}}));
  EXPECT_EQ(painted(0.5, 2, draw).texts, (std::vector<Paper::Words>{{100, 402, 18, "Ann"}}));
}

TEST(Picture, NamesAreCutToTheirTile) {
  const auto cut = [](double scale, std::string words, std::string beginning) {
    const Paper paper = painted(scale, 1, [&](Canvas& map) {
      map.text(name(mapstop, words));
      map.text(name(mapstop, beginning));
    });
    return std::pair(paper.texts.at(0).text, paper.texts.at(1).text);
  };
  using Pair = std::pair<std::string, std::string>;
  EXPECT_EQ(cut(1, "Nightjar (20)[Dazed]", "Nightjar"), Pair("Nightjar (20)[D…", "Nightjar"));
  EXPECT_EQ(cut(0.3, "Nightjar (20)", "Nightjar"), Pair("Night…", "Night…"));
  EXPECT_EQ(cut(0.3, "Ändülé (20)", "Ändülé"), Pair("Ändül…", "Ändül…"));
  EXPECT_EQ(cut(0.3, "Ann (20)", "Ann"), Pair("Ann (…", "Ann"));
  EXPECT_EQ(cut(0.02, "Ann", "Ann"), Pair("", ""));
}

TEST(Picture, WhatWouldLieOverAnotherTextForLackOfRoomIsLeftOut) {
  const auto seen = [](double scale) {
    const Paper paper = painted(scale, 1, [](Canvas& map) {
      map.text(name(100 + mapstop, "Ann"));
      map.text(name(110 + mapstop, "F=3"));
      map.text(name(122 + mapstop, "Bob"));
      map.text(name(126 + mapstop, "[Chair]"));  // over Bob at any scale
    });
    std::string all;
    for (const Paper::Words& words : paper.texts) all += words.text + " ";
    return all;
  };
  EXPECT_EQ(seen(1), "Ann F=3 Bob [Chair] ");
  EXPECT_EQ(seen(0.5), "Ann Bob [Chair] ");
  EXPECT_EQ(seen(0.2), "Ann ");
}

TEST(Picture, LabelsMoveOutOfTheGrid) {
  const Paper paper = painted(0.2, 1, [](Canvas& map) {
    map.text({.x = 35,
              .y = mapstop + 50,
              .font = "Sans",
              .points = 9,
              .colour = white,
              .words = "15",
              .within = {0, mapstop, 48, mapstop + 100}});
  });
  EXPECT_EQ(paper.texts, (std::vector<Paper::Words>{{1, 111, 9, "15"}}));
}

TEST(Picture, TheSpokenLineKeepsItsPlace) {
  Picture picture;
  picture.fit(400, 300, 2);
  picture.map(5000, 5000);
  picture.spokenline()->text(
      {.x = 5, .y = 15, .font = "Sans", .points = 28, .colour = white, .words = "A line"});
  Paper paper;
  picture.paint(paper);
  EXPECT_EQ(paper.texts, (std::vector<Paper::Words>{{10, 30, 75, "A line"}}));
  picture.spokenline();
  Paper clean;
  picture.paint(clean);
  EXPECT_TRUE(clean.texts.empty());
}

TEST(Picture, NoOneLooksAtAWindowWithoutSize) {
  Picture picture;
  picture.fit(0, 300, 1);
  EXPECT_EQ(picture.map(5, 200), nullptr);
  EXPECT_EQ(picture.spokenline(), nullptr);
}

}  // namespace
}  // namespace duskmarch
