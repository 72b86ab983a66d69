// The one window: the drawing for onlookers, and the keys of the player.
#pragma once

#include <QDialog>
#include <QMainWindow>
#include <memory>
#include <vector>

#include "game.h"
#include "platform/desktop.h"
#include "platform/frontend/picture.h"
#include "platform/qt/screenreader.h"

namespace duskmarch {

class QtWindow : public QMainWindow, public Window {
 public:
  QtWindow();

  // The game that the window serves; keys and repaints before this call reach nobody.
  void attach(Game& game) { game_ = &game; }
  Game* game() { return game_; }
  bool readerattached() const { return reader_.attached(); }
  // Ends the program once the handler at work has returned; no key acts any more.
  void end();

  // `page` covers the window's inner area from now on, whatever its size.
  void cover(QWidget& page);
  // What lay under a page or a box shows again.
  void uncovered();
  // A key pressed in the window or in one of its pages. False if it went to the box that is open.
  bool takekey(QKeyEvent& event);
  // Shows the box, which takes all the keys, until it is closed. To be called with a box that only
  // tells of its end, and stays: it goes when the key's handler has done its work, so that the
  // title is set by then. A screen reader reads the title of a window that becomes active.
  void runmodal(QDialog& box);
  void closelater(std::unique_ptr<QDialog> box);

  void settitle(std::string_view title) override;
  Canvas* spokenline() override;
  Canvas* map(int right, int bottom) override;
  void processevents() override;
  void wait(std::chrono::milliseconds duration) override;
  void sendkey(int keycode, bool down) override;

 protected:
  void keyPressEvent(QKeyEvent* event) override { takekey(*event); }
  bool focusNextPrevChild(bool) override { return false; }  // Tab is a key like any other
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void changeEvent(QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;

 private:
  void fitpicture();
  void closeboxes();
  void dropboxes();
  void placepages();

  Game* game_ = nullptr;
  Picture picture_;
  ScreenReader reader_;
  std::vector<QWidget*> pages_;
  QDialog* box_ = nullptr;
  std::vector<std::unique_ptr<QDialog>> closedboxes_;  // still to be seen
  bool stale_ = true;  // the game must draw again before the surface is shown
};

}  // namespace duskmarch
