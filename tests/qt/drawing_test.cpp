// What the window shows to onlookers.
#include <QImage>
#include <algorithm>

#include "qtwindow.h"
#include "shell/speech/speech.h"
#include "world/drawnmap.h"

namespace duskmarch {

namespace {

QImage shot(QtWindow& window) {
  window.processevents();
  return window.grab().toImage();
}

// The part of the image where there is a colour like that.
QRect inked(const QImage& image, QColor colour) {
  QRect area;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      if (image.pixelColor(x, y) == colour) area |= QRect(x, y, 1, 1);
    }
  }
  return area;
}

constexpr Colour magenta{255, 0, 255};
const QColor qtmagenta(255, 0, 255);

TEST_F(QtWindowTest, TheMapFillsTheWindowAtAnySize) {
  game.mapwidth = game.mapheight = 5;
  game.menuname = screen::map;
  game.cursorx = game.cursory = 5;
  drawscreen(game);
  for (const QSize size : {QSize(1288, 660), QSize(640, 400), QSize(1900, 1000), QSize(500, 900)}) {
    window.resize(size);
    const QRect cursor = inked(shot(window), qtmagenta);
    const double scale = std::min(size.width() / 560.0, (size.height() - 101) / 559.0);
    EXPECT_NEAR(cursor.right(), 547 * scale, 2) << size.width();
    EXPECT_NEAR(cursor.bottom(), 101 + (647 - 101) * scale, 2) << size.width();
  }
}

TEST_F(QtWindowTest, ResizingShowsTheSpokenTextAndNothingOld) {
  sayit(game, "A text that is longer than one line of a small window.");
  const QRect wide = inked(shot(window), Qt::white);
  window.resize(500, 300);
  const QRect narrow = inked(shot(window), Qt::white);
  EXPECT_GT(wide.right(), 500);
  EXPECT_GT(narrow.bottom(), wide.bottom() + 30);
  window.resize(1288, 660);
  EXPECT_EQ(inked(shot(window), Qt::white), wide);
}

TEST_F(QtWindowTest, TheMapGoesAwayWithTheMission) {
  game.mapwidth = game.mapheight = 5;
  game.menuname = screen::map;
  game.cursorx = game.cursory = 2;
  drawscreen(game);
  ASSERT_FALSE(inked(shot(window), qtmagenta).isEmpty());
  press(&window, Qt::Key_Escape, {}, Qt::ShiftModifier);
  EXPECT_TRUE(inked(shot(window), qtmagenta).isEmpty());
}

TEST_F(QtWindowTest, TextStartsAtItsTopLeftCorner) {
  window.spokenline()->text(
      {.x = 300, .y = 300, .font = "Arial", .points = 28, .colour = magenta, .words = "Hall"});
  const QRect letters = inked(shot(window), qtmagenta);
  // 28 points are 37 pixels from line to line; capitals are about seven tenths of that.
  EXPECT_TRUE(QRect(300, 300, 100, 40).contains(letters)) << letters.top();
  EXPECT_GE(letters.height(), 24);
}

}  // namespace

}  // namespace duskmarch
