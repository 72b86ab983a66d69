#include "platform/qt/window.h"

#include <QApplication>
#include <QEventLoop>
#include <QKeyEvent>
#include <QPainter>
#include <QTimer>
#include <utility>

#include "platform/qt/keymap.h"
#include "platform/qt/text.h"
#include "shell/keyboard.h"
#include "shell/startup.h"

namespace duskmarch {

QtWindow::QtWindow() : canvas_([this](const QRect& area) { update(area); }), reader_(*this) {
  setWindowTitle(QStringLiteral("Duskmarch"));
  // A window that gets the focus has its title read out, that is the last text once more; of a
  // part without a name nothing is said.
  setCentralWidget(new QWidget);
  centralWidget()->setFocusPolicy(Qt::StrongFocus);
  setFocusProxy(centralWidget());
  setAttribute(Qt::WA_OpaquePaintEvent);  // the canvas covers all of it
  setMinimumSize(320, 200);
  resize(1288, 660);
  canvas_.fit(size(), devicePixelRatio());
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
  if (isheldtoolong(event)) return true;
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

Canvas* QtWindow::canvas() {
  return size().isEmpty() ? nullptr : &canvas_;
}

void QtWindow::processevents() {
  QCoreApplication::processEvents();
}

void QtWindow::wait(std::chrono::milliseconds duration) {
  QEventLoop loop;
  QTimer::singleShot(duration, Qt::PreciseTimer, &loop, &QEventLoop::quit);
  loop.exec();
}

void QtWindow::sendkey(int, bool) {
  // Only Window-Eyes listens for such keys, and it is not to be had here. The readers that are
  // would take the Ctrl for the player's own, and fall silent.
}

void QtWindow::paintEvent(QPaintEvent* event) {
  if (game_ != nullptr && std::exchange(stale_, false)) duskmarch::repaint(*game_);
  QPainter painter(this);
  canvas_.show(painter, event->rect());
}

void QtWindow::resizeEvent(QResizeEvent*) {
  canvas_.fit(size(), devicePixelRatio());
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

void QtWindow::placepages() {
  for (QWidget* page : pages_) page->setGeometry(rect());
}

}  // namespace duskmarch
