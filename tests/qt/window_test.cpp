// The window, its pages and its boxes, under real key events.
#include <QApplication>
#include <QContextMenuEvent>
#include <QDialog>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTemporaryDir>
#include <QTimer>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "platform/qt/frontend.h"
#include "shell/speech/speechsettings.h"

namespace duskmarch {

namespace {

using Texts = std::vector<std::string>;

void press(QWidget* where, int key, const QString& text = {},
           Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
  QKeyEvent event(QEvent::KeyPress, key, modifiers, text);
  QCoreApplication::sendEvent(where, &event);
}

void type(QWidget* where, const QString& letters) {
  for (const QChar letter : letters) press(where, letter.toUpper().unicode(), letter);
}

class Recorder : public Voice {
 public:
  explicit Recorder(std::vector<std::string>& said) : said_(said) {}
  void setrate(int) override {}
  void speak(std::string_view text) override { said_.emplace_back(text); }
  void speakafter(std::string_view text) override { said_.emplace_back(text); }
  void hush() override { said_.emplace_back(""); }

 private:
  std::vector<std::string>& said_;
};

class QtWindowTest : public testing::Test {
 protected:
  QtWindowTest() {
    game.handlekey = [](Game& g, KeyPress key) {
      g.list1.push_back(std::to_string(key.keycode));
      if (key.keycode != 'E') return;
      g.desktop.window.processevents();
      g.list1.emplace_back("turn ended");
    };
    game.sapivoice = std::make_unique<Recorder>(said);
    game.sapiready = 1;
    window.attach(game);
    window.show();
    window.processevents();
  }

  // Does `something` to what takes the keys of the box that the next call opens.
  template <typename Something>
  void inbox(Something something) {
    QTimer::singleShot(0, &window, [=, this] {
      auto* box = window.findChild<QDialog*>();
      something(box->focusWidget() != nullptr ? box->focusWidget() : box);
    });
  }
  Texts keys() const { return {game.list1.begin(), game.list1.end()}; }
  QPlainTextEdit* pageview() { return window.findChild<QPlainTextEdit*>(); }

  Texts said;
  QtWindow window;
  QtPage summarylabel{window, "Turn summary"};
  QtPage storylabel{window, "Story"};
  QtDialogs dialogs{window};
  QtSystem system{window, {}};
  Desktop desktop{system, window, summarylabel, storylabel, dialogs};
  Game game{desktop};
};

TEST_F(QtWindowTest, PassesEveryKeyAndKeepsTheFocus) {
  for (const int key : {Qt::Key_Tab, Qt::Key_Down, Qt::Key_Escape, Qt::Key_Control}) {
    press(&window, key);
  }
  press(&window, Qt::Key_Backtab, {}, Qt::ShiftModifier);
  EXPECT_EQ(keys(), (Texts{"9", "40", "27", "17", "9"}));
  EXPECT_TRUE(window.hasFocus());
}

TEST_F(QtWindowTest, KeepsAKeyUntilTheHandlerAtWorkIsDone) {
  for (const int key : {Qt::Key_N, Qt::Key_Down}) {
    QCoreApplication::postEvent(&window, new QKeyEvent(QEvent::KeyPress, key, Qt::NoModifier));
  }
  press(&window, Qt::Key_E);
  EXPECT_EQ(keys(), (Texts{"69", "turn ended", "78", "40"}));
}

TEST_F(QtWindowTest, WaitsWithKeysComingThrough) {
  QTimer::singleShot(0, &window, [this] { press(&window, Qt::Key_N); });
  window.wait(std::chrono::milliseconds(1));
  EXPECT_EQ(keys(), (Texts{"78"}));
}

TEST_F(QtWindowTest, PageCoversTheWindowAndGivesTheFocusBack) {
  storylabel.show("First.\r\n\r\nLast.");
  storylabel.focus();
  EXPECT_TRUE(pageview()->hasFocus());
  EXPECT_EQ(pageview()->toPlainText(), "First.\n\nLast.");
  EXPECT_EQ(pageview()->accessibleName(), "Story");
  window.resize(700, 500);
  window.processevents();
  EXPECT_EQ(pageview()->geometry(), QRect(0, 0, 700, 500));
  press(pageview(), Qt::Key_Escape);
  press(pageview(), Qt::Key_Tab);
  EXPECT_EQ(keys(), (Texts{"27", "9"}));
  storylabel.hide();
  EXPECT_FALSE(pageview()->isVisible());
  EXPECT_TRUE(window.hasFocus());
}

TEST_F(QtWindowTest, PageTellsWhereTheCaretWent) {
  summarylabel.show("One\r\nTwo");
  summarylabel.focus();
  for (const int key : {Qt::Key_Down, Qt::Key_Down, Qt::Key_Right, Qt::Key_Home, Qt::Key_Left,
                        Qt::Key_Up, Qt::Key_Escape}) {
    press(pageview(), key);
  }
  // At the lower edge the line is said again; from the start of "Two" Left leads to "One".
  EXPECT_EQ(said, (Texts{"Two", "Two", "w", "T", "One", "One"}));
}

TEST_F(QtWindowTest, PageTellsOfACaretThatCannotMove) {
  summarylabel.show("One\r\n\r\nTwo words");
  summarylabel.focus();
  for (const int key : {Qt::Key_Up, Qt::Key_Left, Qt::Key_Down, Qt::Key_PageDown, Qt::Key_End,
                        Qt::Key_End, Qt::Key_Right, Qt::Key_PageDown, Qt::Key_Home}) {
    press(pageview(), key);
  }
  EXPECT_EQ(said, (Texts{"One", "One", "Blank.", "Two words", "Two words", "Two words", "Two words",
                         "Two words", "T"}));
  said.clear();
  press(pageview(), Qt::Key_Right);
  press(pageview(), Qt::Key_Right);
  press(pageview(), Qt::Key_Right);
  EXPECT_EQ(said, (Texts{"w", "o", " "}));
}

TEST_F(QtWindowTest, BoxesTellAgainWhatTabComesBackTo) {
  inbox([this](QWidget* field) {
    QCoreApplication::processEvents();  // which makes the box the active window
    for (const int key : {Qt::Key_Left, Qt::Key_Tab, Qt::Key_Tab, Qt::Key_Tab}) {
      press(QApplication::focusWidget(), key);
    }
    EXPECT_EQ(said, (Texts{"Blank.", "OK", "Cancel", "What & why?"}));
    type(field, "ab");
    said.clear();
    for (const int key : {Qt::Key_Right, Qt::Key_Home, Qt::Key_End}) press(field, key);
    EXPECT_EQ(said, (Texts{"ab", "a", "ab"}));
    press(field, Qt::Key_Escape);
  });
  dialogs.input("Name", "What & why?");
  said.clear();
  inbox([](QWidget*) {
    QCoreApplication::processEvents();
    press(QApplication::focusWidget(), Qt::Key_Tab);
    press(QApplication::focusWidget(), Qt::Key_Return);
  });
  dialogs.message("Victory", "Mission complete!");
  EXPECT_EQ(said, Texts{"Mission complete!"});
}

TEST_F(QtWindowTest, PageShownAgainBeginsAtItsStart) {
  summarylabel.show("One\r\nTwo");
  press(pageview(), Qt::Key_Down);
  summarylabel.hide();
  summarylabel.show("Three\r\nFour");
  press(pageview(), Qt::Key_Right);
  EXPECT_EQ(said.back(), "h");
}

TEST_F(QtWindowTest, InputBoxEchoesAndReturnsWhatIsTyped) {
  inbox([](QWidget* field) {
    EXPECT_EQ(field->window()->windowTitle(), "Name");
    type(field, "ab");
    press(field, Qt::Key_Home);
    type(field, "c");
    press(field, Qt::Key_Right);
    press(field, Qt::Key_Delete);
    press(field, Qt::Key_Home, {}, Qt::ShiftModifier);
    type(field, "x");
    press(field, Qt::Key_Return);
  });
  EXPECT_EQ(dialogs.input("Name", "What is the name?"), "x");
  // Typed, what the caret came to, taken away, and typed over what was selected.
  EXPECT_EQ(said, (Texts{"a", "b", "a", "c", "b", "b", "c", "x"}));
  window.processevents();
  EXPECT_TRUE(window.hasFocus());
}

TEST_F(QtWindowTest, AHeldEnterGivesNoOrders) {
  const auto hold = [](QWidget* where, int key) {
    QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier, {}, true);
    QCoreApplication::sendEvent(where, &event);
  };
  for (const int key : {Qt::Key_Down, Qt::Key_Return, Qt::Key_Space}) hold(&window, key);
  EXPECT_EQ(keys(), (Texts{"40"}));
  inbox([=](QWidget* field) {
    QCoreApplication::processEvents();  // which makes the box the active window
    hold(field, Qt::Key_Return);
    type(field, "n");
    press(field, Qt::Key_Control);
    press(field, Qt::Key_Tab);
    press(QApplication::focusWidget(), Qt::Key_Return);
  });
  EXPECT_EQ(dialogs.input("Name", "What is the name?"), "n");
  EXPECT_EQ(said.front(), "n");
  EXPECT_EQ(said.at(1), "");
  EXPECT_EQ(said.back(), "OK");
}

TEST_F(QtWindowTest, TheMenuKeyOpensNothing) {
  const auto askformenu = [](QWidget* widget) {
    QContextMenuEvent event(QContextMenuEvent::Keyboard, {}, {});
    QCoreApplication::sendEvent(widget, &event);
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
  };
  storylabel.show("Text");
  askformenu(pageview());
  inbox([=](QWidget* field) {
    askformenu(field);
    press(field, Qt::Key_Escape);
  });
  dialogs.input("Name", "What is the name?");
}

TEST_F(QtWindowTest, TheVoiceFallsSilentForAnotherEngine) {
  const QTemporaryDir folder;  // for the settings
  game.programfolder = folder.path().toStdString();
  switchengine(game);
  EXPECT_EQ(said, (Texts{""}));
}

TEST_F(QtWindowTest, InputBoxGetsWhatIsTypedBeforeItIsActive) {
  inbox([this](QWidget*) {
    type(&window, "n");
    press(&window, Qt::Key_Return);
  });
  EXPECT_EQ(dialogs.input("", "Which direction?"), "n");
  EXPECT_TRUE(keys().empty());
}

TEST_F(QtWindowTest, EscapeCancelsTheInputBox) {
  inbox([](QWidget* field) {
    EXPECT_EQ(field->window()->windowTitle(), "Duskmarch");
    type(field, "n");
    press(field, Qt::Key_Escape);
  });
  EXPECT_EQ(dialogs.input("", "Which direction?"), "");
}

TEST_F(QtWindowTest, MessageBoxReturnsToThePage) {
  storylabel.show("Text");
  storylabel.focus();
  inbox([](QWidget* button) { press(button, Qt::Key_Return); });
  dialogs.message("Victory", "Mission complete!");
  window.processevents();
  EXPECT_TRUE(pageview()->hasFocus());
}

TEST_F(QtWindowTest, EndingTheProgramClosesTheBox) {
  inbox([this](QWidget*) { window.close(); });
  EXPECT_EQ(dialogs.input("", "Which direction?"), "");
  press(&window, Qt::Key_N);
  EXPECT_TRUE(keys().empty());
}

QColor pixel(QtWindow& window, int x, int y) {
  return window.grab().toImage().pixelColor(x, y);
}

TEST_F(QtWindowTest, DrawingSurvivesResizing) {
  window.canvas()->fill({600, 400, 610, 410}, {255, 0, 0});
  window.canvas()->outline({100, 100, 200, 200}, {0, 255, 0});
  window.resize(500, 300);
  window.processevents();
  EXPECT_EQ(window.canvas()->width(), 500);
  EXPECT_EQ(pixel(window, 199, 150), QColor(0, 255, 0));
  EXPECT_EQ(pixel(window, 150, 150), QColor(Qt::black));
  window.resize(1400, 700);
  window.processevents();
  EXPECT_EQ(pixel(window, 609, 409), QColor(255, 0, 0));
  EXPECT_EQ(pixel(window, 610, 410), QColor(Qt::black));
  EXPECT_EQ(pixel(window, 1399, 699), QColor(Qt::black));
}

TEST_F(QtWindowTest, TextStartsAtItsTopLeftCorner) {
  window.canvas()->text(300, 300, "Arial", 28, {255, 255, 255}, "Hall");
  const QImage image = window.grab().toImage();
  QRect inked;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      if (qGray(image.pixel(x, y)) > 60) inked |= QRect(x, y, 1, 1);
    }
  }
  // 28 points are 37 pixels from line to line; capitals are about seven tenths of that.
  EXPECT_TRUE(QRect(300, 300, 100, 40).contains(inked)) << inked.top() << ' ' << inked.bottom();
  EXPECT_GE(inked.height(), 24);
}

TEST(FrontEndTest, PlaysFromTheWelcomeToTheExit) {
  const QTemporaryDir folder;  // with settings of its own
  FrontEnd frontend(folder.path().toStdString());
  Game game(frontend.desktop());
  QTimer player;
  QObject::connect(&player, &QTimer::timeout, [&] {
    QWidget* const window = QApplication::activeWindow();
    if (window == nullptr) return;  // the game is still starting
    player.stop();
    press(window, Qt::Key_Up);  // to the last entry of the main menu
    press(window, Qt::Key_Return);
  });
  player.start();
  frontend.run(game);
  EXPECT_EQ(game.saidlines[1], "Good bye.");
  EXPECT_TRUE(game.ended);
}

}  // namespace

}  // namespace duskmarch

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  qputenv("SDL_AUDIODRIVER", "dummy");
  testing::InitGoogleTest(&argc, argv);
  const QApplication application(argc, argv);
  return RUN_ALL_TESTS();
}
