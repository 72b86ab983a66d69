// The pages and boxes of the window, as a player reads and answers them.
#include "shell/speech/pages.h"

#include <QContextMenuEvent>

#include "platform/replay/replayengines.h"
#include "qtwindow.h"

namespace duskmarch {

namespace {

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

TEST_F(QtWindowTest, PageOfSoundsPlaysTheLineThatTheCaretIsOn) {
  Transcript transcript;
  game.dsound = std::make_unique<ReplaySound>(transcript);
  press(&window, Qt::Key_F7);
  EXPECT_EQ(pageview()->accessibleName(), "Sounds");
  const auto played = [&](int key) {
    press(pageview(), key);
    transcript.clear();
    press(pageview(), Qt::Key_F7);
    return transcript.text().substr(0, transcript.text().find("\t0"));
  };
  played(Qt::Key_Down);
  EXPECT_EQ(played(Qt::Key_Down), "cue\tdive");
  window.resize(400, 500);  // each line takes two
  window.processevents();
  for (const char* name : {"target-chosen", "target-chosen", "step", "step"}) {
    EXPECT_EQ(played(Qt::Key_Up), std::string("cue\t") + name) << said.back();
  }
  press(pageview(), Qt::Key_Escape);
  EXPECT_TRUE(window.hasFocus());
  press(&window, Qt::Key_F1);
  EXPECT_EQ(pageview()->accessibleName(), "Help");
  game.dsound.reset();
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
  EXPECT_EQ(dialogs.input("Name", "What & why?"), "");
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
    press(field, Qt::Key_Control);
    press(field, Qt::Key_Return);
  });
  EXPECT_EQ(dialogs.input("Name", "What is the name?"), "x");
  // Typed, what the caret came to, taken away, and typed over what was selected.
  EXPECT_EQ(said, (Texts{"a", "b", "a", "c", "b", "b", "c", "x", ""}));
  window.processevents();
  EXPECT_TRUE(getsfocus(window));
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
    const auto open = [line = qobject_cast<QLineEdit*>(field)] { return line->text().isEmpty(); };
    press(field, Qt::Key_Left, {}, Qt::ControlModifier);  // the system's, as with Alt
    if (open()) press(field, Qt::Key_Up, {}, Qt::AltModifier);
    if (open()) press(field, Qt::Key_Down, {}, Qt::ShiftModifier);
  });
  EXPECT_EQ(ask(), "S");
  said.clear();
  inbox([](QWidget* field) {
    type(field, "s");
    press(field, Qt::Key_Left);
    press(field, Qt::Key_Return);
  });
  EXPECT_EQ(ask(), "s");
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

TEST_F(QtWindowTest, InputBoxGetsWhatIsTypedBeforeItIsActive) {
  inbox([this](QWidget*) {
    type(&window, "n");
    press(&window, Qt::Key_Return);
  });
  EXPECT_EQ(dialogs.input("", "Which direction?"), "n");
  EXPECT_TRUE(keys().empty());
}

TEST_F(QtWindowTest, MessageBoxReturnsToThePage) {
  storylabel.show("Text");
  storylabel.focus();
  inbox([](QWidget* button) { press(button, Qt::Key_Return); });
  dialogs.message("Victory", "Mission complete!");
  window.processevents();
  EXPECT_TRUE(getsfocus(*pageview()));
}

TEST_F(QtWindowTest, EndingTheProgramClosesTheBox) {
  inbox([this](QWidget* field) {
    EXPECT_EQ(field->window()->windowTitle(), "Duskmarch");
    window.close();
  });
  EXPECT_EQ(dialogs.input("", "Which direction?"), "");
  press(&window, Qt::Key_N);
  EXPECT_TRUE(keys().empty());
}

}  // namespace

}  // namespace duskmarch
