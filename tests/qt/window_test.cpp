// The window's keys, and the program from its start to its end.
#include <QFile>
#include <QScreen>

#include "platform/qt/application.h"
#include "qtwindow.h"
#include "shell/speech/keycodes.h"

namespace duskmarch {

namespace {

TEST_F(QtWindowTest, OpensNoLargerThanTheScreensFreeArea) {
  const QtWindow another;
  const QSize room = another.screen()->availableSize();
  ASSERT_LT(room.width(), 1288);
  EXPECT_LT(another.width(), room.width());
  EXPECT_LT(another.height(), room.height());
}

TEST_F(QtWindowTest, PassesEveryKeyAndKeepsTheFocus) {
  for (const int key : {Qt::Key_Tab, Qt::Key_Down, Qt::Key_Escape, Qt::Key_Control}) {
    press(&window, key);
  }
  press(&window, Qt::Key_Backtab, {}, Qt::ShiftModifier);
  EXPECT_EQ(keys(), (Texts{"9", "40", "27", "17 2", "9 1"}));
  EXPECT_TRUE(window.hasFocus());
}

TEST_F(QtWindowTest, KeepsAKeyUntilTheHandlerAtWorkIsDone) {
  QCoreApplication::postEvent(&window,
                              new QKeyEvent(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier));
  press(&window, Qt::Key_L);  // handles events before the page has the focus, and once more after
  EXPECT_EQ(keys(), (Texts{"76", "27"}));
  EXPECT_TRUE(pageview()->isHidden());
}

TEST_F(QtWindowTest, WaitsWithKeysComingThrough) {
  game.waitingkeys.push_back({.keycode = key::x});
  QTimer::singleShot(0, &window, [this] { press(&window, Qt::Key_N); });
  window.wait(std::chrono::milliseconds(1));
  EXPECT_EQ(keys(), (Texts{"88", "78"}));
}

TEST(FrontEndTest, WithoutASoundDeviceItEndsAndTheLogTellsWhy) {
  const QTemporaryDir folder;
  qputenv("SDL_AUDIODRIVER", "nosuch");
  const GameFolders folders(folder.path().toStdString());
  FrontEnd frontend(folders);
  Game game(frontend.desktop());
  QTimer player;
  QObject::connect(&player, &QTimer::timeout, [&] {
    auto* const box = qobject_cast<QDialog*>(QApplication::activeWindow());
    if (box == nullptr) return;
    player.stop();
    press(box, Qt::Key_Escape);
  });
  player.start();
  EXPECT_FALSE(frontend.run(game));
  qputenv("SDL_AUDIODRIVER", "dummy");
  QFile log(folder.filePath("debuglog.txt"));
  ASSERT_TRUE(log.open(QIODevice::ReadOnly));
  EXPECT_TRUE(log.readAll().contains("The sound device cannot be started: "));
}

}  // namespace

}  // namespace duskmarch

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  qputenv("SDL_AUDIODRIVER", "dummy");
  testing::InitGoogleTest(&argc, argv);
  const duskmarch::Application application(argc, argv);
  return RUN_ALL_TESTS();
}
