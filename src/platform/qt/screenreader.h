// The screen reader beside the game, reached over the accessibility bus.
#pragma once

#include <QObject>
#include <QString>
#include <QTimer>
#include <functional>

class QWidget;

namespace duskmarch {

// Asks Qt to serve screen readers; to be called before the QApplication is made. Without it a
// reader started after the game would never see the program.
void servescreenreaders();

class ScreenReader {
 public:
  // `found` is called each time that a reader turns out to be there after all.
  ScreenReader(QWidget& window, std::function<void()> found);

  // The window's name for a reader is its new title, at all times; nothing is said.
  void retitled(const QString& title);
  // Has the reader say the window's new title, also when it is the same as before. While the window
  // is not active no reader listens; it says the title by itself when the window is active again.
  void announce(const QString& title);
  // Whether a reader wants to know what the program does, as far as is known by now.
  bool attached() const { return attached_; }

 private:
  void ask();

  QWidget& window_;
  std::function<void()> found_;
  QTimer timer_;
  bool longer_ = false;  // the last title was announced with two spaces more, not with one
  bool attached_ = false;
};

}  // namespace duskmarch
