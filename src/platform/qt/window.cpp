#include "platform/qt/window.h"

#include <QApplication>
#include <QEventLoop>
#include <QKeyEvent>
#include <QTimer>
#include <utility>

#include "platform/qt/keymap.h"
#include "platform/qt/painter.h"
#include "platform/qt/text.h"
#include "shell/keyboard.h"
#include "shell/startup.h"

namespace duskmarch {

QtWindow::QtWindow() : reader_(*this) {
  setWindowTitle(QStringLiteral("Duskmarch"));
  // A window that gets the focus has its title read out, that is the last text once more; of a
  // part without a name nothing is said.
  setCentralWidget(new QWidget);
  centralWidget()->setFocusPolicy(Qt::StrongFocus);
  setFocusProxy(centralWidget());
  setAttribute(Qt::WA_OpaquePaintEvent);  // the picture covers all of it
  setMinimumSize(320, 200);
  resize(1288, 660);
  fitpicture();
  qApp->installEventFilter(this);
}

void QtWindow::end() {
  if (game_ != nullptr) game_->ended = true;
  // Not quit(): that one asks the windows, and a box that is open would say no.
  QCoreApplication::exit();
}

void QtWindow::cover(QWidget& page) {
  pages_.push_back(&page);
  placepages();
}

void QtWindow::uncovered() {
  stale_ = true;
  update();
}

bool QtWindow::takekey(QKeyEvent& event) {
  // A box that has been opened is not active at once; what the player types ahead belongs to it.
  if (box_ != nullptr) {
    QWidget* inside = box_->focusWidget();
    QCoreApplication::sendEvent(inside != nullptr ? inside : box_, &event);
    return false;
  }
  if (const auto press = virtualkey(event); press && game_ != nullptr) keypress(*game_, *press);
  return true;
}

// Not modal in Qt's sense: Qt would throw away the keys that still come to the window below.
void QtWindow::runmodal(QDialog& box) {
  QDialog* const outer = std::exchange(box_, &box);
  QEventLoop loop;
  QObject::connect(&box, &QDialog::finished, &loop, &QEventLoop::quit);
  box.show();
  box.activateWindow();
  loop.exec();
  box.hide();
  box_ = outer;
  activateWindow();
  uncovered();
}

void QtWindow::settitle(std::string_view title) {
  const QString before = windowTitle();
  const QString text = toqt(title);
  setWindowTitle(text);
  // A space at the end only prepares for saying the same title again.
  if (text != before + u' ') reader_.announce(text);
}

Canvas* QtWindow::spokenline() {
  update();
  return picture_.spokenline();
}

Canvas* QtWindow::map(int right, int bottom) {
  update();
  return picture_.map(right, bottom);
}

void QtWindow::processevents() {
  QCoreApplication::processEvents();
}

void QtWindow::wait(std::chrono::milliseconds duration) {
  if (game_ != nullptr) handlewaitingkeys(*game_);
  QEventLoop loop;
  QTimer::singleShot(duration, Qt::PreciseTimer, &loop, &QEventLoop::quit);
  loop.exec();
}

void QtWindow::sendkey(int, bool) {
  // Only Window-Eyes listens for such keys, and it is not to be had here. The readers that are
  // would take the Ctrl for the player's own, and fall silent.
}

void QtWindow::paintEvent(QPaintEvent*) {
  if (game_ != nullptr && std::exchange(stale_, false)) duskmarch::repaint(*game_);
  fitpicture();
  QtPainter painter(*this, devicePixelRatio());
  picture_.paint(painter);
}

void QtWindow::resizeEvent(QResizeEvent*) {
  fitpicture();
  placepages();
  uncovered();
}

void QtWindow::changeEvent(QEvent* event) {
  QMainWindow::changeEvent(event);
  if (event->type() != QEvent::ActivationChange || !isActiveWindow()) return;
  placepages();
  uncovered();
}

void QtWindow::closeEvent(QCloseEvent*) {
  end();
}

// Sees the keys before the part of a window that they are for does, and each once: the event for
// the window as the system knows it.
bool QtWindow::eventFilter(QObject* object, QEvent* event) {
  const bool released = event->type() == QEvent::KeyRelease;
  if (!object->isWindowType() || (!released && event->type() != QEvent::KeyPress)) return false;
  const auto& key = static_cast<const QKeyEvent&>(*event);
  if (released) {
    if (!key.isAutoRepeat()) heldkeys_.released(key.nativeScanCode(), key.timestamp());
    return false;
  }
  const auto press = virtualkey(key);
  return press && actsonce(press->keycode) &&
         heldkeys_.repeats(key.nativeScanCode(), key.timestamp(), key.isAutoRepeat());
}

void QtWindow::fitpicture() {
  picture_.fit(width(), height(), devicePixelRatio());
}

void QtWindow::placepages() {
  for (QWidget* page : pages_) page->setGeometry(rect());
}

}  // namespace duskmarch
