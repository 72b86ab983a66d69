// The game in the window of its front end, under real key events.
#pragma once

#include <QApplication>
#include <QDeadlineTimer>
#include <QDialog>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTemporaryDir>
#include <QTimer>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "platform/qt/frontend.h"
#include "shell/startup.h"

namespace duskmarch {

using Texts = std::vector<std::string>;

inline void press(QWidget* where, int key, const QString& text = {},
                  Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
  QKeyEvent event(QEvent::KeyPress, key, modifiers, text);
  QCoreApplication::sendEvent(where, &event);
}

inline void type(QWidget* where, const QString& letters) {
  for (const QChar letter : letters) press(where, letter.toUpper().unicode(), letter);
}

// Also without a window manager, which gives it back sooner.
inline bool getsfocus(const QWidget& widget) {
  const QDeadlineTimer limit(60'000);
  while (!widget.hasFocus() && !limit.hasExpired()) {
    QCoreApplication::processEvents(QEventLoop::AllEvents, 50);
  }
  return widget.hasFocus();
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
  GameFolders folders{folder.path().toStdString()};
  QtSystem system{window, folders};
  Desktop desktop{system, window, summarylabel, storylabel, helplabel, dialogs};
  Game game{desktop};
};

}  // namespace duskmarch
