// What a text page looks like, and its caret keys.
#pragma once

#include <QPlainTextEdit>

#include "platform/qt/window.h"

namespace duskmarch {

class PageView : public QPlainTextEdit {
 public:
  // `name` is what a screen reader calls the page.
  PageView(QtWindow& window, const QString& name);

  // Puts the caret at the start.
  void settext(const QString& text);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  bool focusNextPrevChild(bool) override { return false; }  // Tab is a key like any other

 private:
  void movecaret(QKeyEvent& event);

  QtWindow& window_;
};

}  // namespace duskmarch
