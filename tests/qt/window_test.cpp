// The window, its pages and its boxes, under real key events.
#include <QApplication>
#include <QContextMenuEvent>
#include <QDialog>
#include <QFile>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QScreen>
#include <QTemporaryDir>
#include <QTimer>
#include <algorithm>
#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "platform/qt/application.h"
#include "platform/qt/frontend.h"
#include "shell/speech/keycodes.h"
#include "shell/speech/pages.h"
#include "shell/speech/speech.h"
#include "shell/speech/speechsettings.h"
#include "shell/startup.h"
#include "world/drawnmap.h"

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
    window.attach(game);
    startup(game);
    game.sapivoice = std::make_unique<Recorder>(said);
    window.resize(1288, 660);  // more than the screen here
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
  // The keys that the game has handled.
  Texts keys() const {
    std::string script;
    game.trace.writeto([&](const char* data, std::size_t size) { script.append(data, size); });
    std::istringstream lines(script);
    Texts codes;
    for (std::string line; std::getline(lines, line);) {
      if (line.starts_with("key ")) codes.push_back(line.substr(4));
    }
    return codes;
  }
  QPlainTextEdit* pageview() { return window.findChild<QPlainTextEdit*>(); }

  Texts said;
  QtWindow window;
  QtPage summarylabel{window, "Turn summary"};
  QtPage storylabel{window, "Story"};
  QtPage helplabel{window, "Help"};
  QtDialogs dialogs{window};
  QTemporaryDir folder;
  QtSystem system{window, folder.path().toStdString()};
  Desktop desktop{system, window, summarylabel, storylabel, helplabel, dialogs};
  Game game{desktop};
};

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
  game.summarylabel.lines = {"Two", "One"};
  showsummary(game);
  focussummary(game);
  for (const int key :
       {Qt::Key_Down, Qt::Key_Down, Qt::Key_Right, Qt::Key_Home, Qt::Key_Left, Qt::Key_Up}) {
    press(pageview(), key);
  }
  // At the lower edge the line is said again; from the start of "Two" Left leads to "One".
  EXPECT_EQ(said, (Texts{"Two", "Two", "w", "T", "One", "One"}));
}

TEST_F(QtWindowTest, PageTellsOfACaretThatCannotMove) {
  game.summarylabel.lines = {"Two words", "", "One"};
  showsummary(game);
  focussummary(game);
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
  game.focus = Focus::summarylabel;
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

TEST_F(QtWindowTest, ArrowsAnswerTheDirectionBoxWhileNothingIsTyped) {
  const ArrowAnswers arrows = {.left = "W", .up = "N", .right = "E", .down = "S"};
  const auto ask = [&] { return dialogs.choosedirection("Direction", "Where?", arrows); };
  for (const auto& [key, answer] : std::vector<std::pair<int, std::string>>{
           {Qt::Key_Left, "W"}, {Qt::Key_Up, "N"}, {Qt::Key_Right, "E"}, {Qt::Key_Down, "S"}}) {
    inbox([key = key](QWidget* field) { press(field, key); });
    EXPECT_EQ(ask(), answer);
  }
  EXPECT_EQ(said, Texts{}) << "the order tells of it";
  inbox([](QWidget* field) {
    type(field, "s");
    press(field, Qt::Key_Left);
    press(field, Qt::Key_Return);
  });
  EXPECT_EQ(ask(), "s");
}

TEST_F(QtWindowTest, InputBoxTellsItsButtonsAndFallsSilent) {
  inbox([](QWidget* field) {
    QCoreApplication::processEvents();  // which makes the box the active window
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
  EXPECT_TRUE(frontend.run(game));
  EXPECT_EQ(game.saidlines[1], "Good bye.");
  EXPECT_TRUE(game.ended);
}

TEST(FrontEndTest, WithoutASoundDeviceItEndsAndTheLogTellsWhy) {
  const QTemporaryDir folder;
  qputenv("SDL_AUDIODRIVER", "nosuch");
  FrontEnd frontend(folder.path().toStdString());
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
