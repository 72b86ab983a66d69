#include "platform/qt/window.h"

#include <QApplication>
#include <QEventLoop>
#include <QIcon>
#include <QKeyEvent>
#include <QScreen>
#include <QTimer>
#include <chrono>
#include <utility>

#include "platform/qt/keymap.h"
#include "platform/qt/painter.h"
#include "platform/qt/text.h"
#include "shell/keyboard.h"
#include "shell/startup.h"

namespace duskmarch {

namespace {

// By then the system has given the focus back from a box that closed. Asking it to beside that
// makes the focus come, go and come again, and a reader says the title each time.
constexpr std::chrono::milliseconds focusreturns{300};

// What there is of `wanted` on the screen, less what a title bar and borders take: they are known
// only when the window is there.
QSize fitting(QSize wanted) {
  const QScreen* screen = QGuiApplication::primaryScreen();
  if (screen == nullptr) return wanted;
  return wanted.boundedTo(screen->availableSize() - QSize(16, 48));
}

}  // namespace

QtWindow::QtWindow()
    : reader_(*this, [this] {
        if (game_ != nullptr) readerfound(*game_);
      }) {
  setWindowTitle(QStringLiteral("Duskmarch"));
  // A window that gets the focus has its title read out, that is the last text once more; of a
  // part without a name nothing is said.
  setCentralWidget(new QWidget);
  centralWidget()->setFocusPolicy(Qt::StrongFocus);
  setFocusProxy(centralWidget());
  setAttribute(Qt::WA_OpaquePaintEvent);  // the picture covers all of it
  setWindowIcon(QIcon(QStringLiteral(":/duskmarch.ico")));
  resize(fitting({1288, 660}));
  fitpicture();
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
  closeboxes();
  return true;
}

// Not modal in Qt's sense: Qt would throw away the keys that still come to the window below.
void QtWindow::runmodal(QDialog& box) {
  QDialog* const outer = std::exchange(box_, &box);
  QEventLoop loop;
  QObject::connect(&box, &QDialog::finished, &loop, &QEventLoop::quit);
  box.show();
  box.activateWindow();
  dropboxes();
  loop.exec();
  box_ = outer;
}

void QtWindow::closelater(std::unique_ptr<QDialog> box) {
  closedboxes_.push_back(std::move(box));
  closeboxes();
}

void QtWindow::closeboxes() {
  if (closedboxes_.empty() || box_ != nullptr) return;
  if (game_ != nullptr && game_->keyhandlerbusy && !game_->ended) return;
  dropboxes();
  QTimer::singleShot(focusreturns, this, [this] {
    if (box_ == nullptr && !isActiveWindow()) activateWindow();
  });
  uncovered();
}

void QtWindow::dropboxes() {
  for (const auto& box : closedboxes_) box->hide();  // while it still is a box that hears of it
  closedboxes_.clear();
}

void QtWindow::settitle(std::string_view title) {
  const QString before = windowTitle();
  const QString text = toqt(title);
  setWindowTitle(text);
  reader_.retitled(text);
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
  closeboxes();  // nothing more is said before long
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

void QtWindow::fitpicture() {
  picture_.fit(width(), height(), devicePixelRatio());
}

void QtWindow::placepages() {
  for (QWidget* page : pages_) page->setGeometry(rect());
}

}  // namespace duskmarch
