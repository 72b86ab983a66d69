#include "platform/qt/pageview.h"

#include <QAccessible>
#include <QKeyEvent>

#include "platform/frontend/reading.h"
#include "platform/qt/fonts.h"
#include "platform/qt/keymap.h"
#include "platform/qt/text.h"
#include "shell/speech/selfreading.h"

namespace duskmarch {

namespace {

// Where the caret is, by the lines that are shown, parts of long paragraphs.
CaretPlace placeof(QTextCursor caret) {
  const int position = caret.position();
  caret.movePosition(QTextCursor::StartOfLine);
  const int start = caret.position();
  caret.movePosition(QTextCursor::EndOfLine, QTextCursor::KeepAnchor);
  const QString line = caret.selectedText();
  return {.linenumber = start,
          .line = fromqt(line),
          .column = fromqt(line.left(position - start)).size()};
}

// Keeps changes from screen readers. A reader that hears of a change in a page takes the page for
// known, and says nothing when it gets the focus.
class Unnoticed {
 public:
  Unnoticed() : handler_(QAccessible::installUpdateHandler([](QAccessibleEvent*) {})) {}
  Unnoticed(const Unnoticed&) = delete;
  Unnoticed& operator=(const Unnoticed&) = delete;
  ~Unnoticed() { QAccessible::installUpdateHandler(handler_); }

 private:
  QAccessible::UpdateHandler handler_;
};

QPalette yellowonblack(QPalette colours) {
  colours.setColor(QPalette::Base, Qt::black);
  colours.setColor(QPalette::Text, Qt::yellow);
  return colours;
}

// 24 points, of which there are 72 to 96 pixels.
QFont pagefont() {
  QFont font = similarfont("Arial", 32);
  font.setBold(true);
  return font;
}

}  // namespace

PageView::PageView(QtWindow& window, const QString& name)
    : QPlainTextEdit(&window), window_(window) {
  hide();
  setAccessibleName(name);
  setReadOnly(true);
  // Read-only alone would take no caret keys.
  setTextInteractionFlags(Qt::TextSelectableByKeyboard | Qt::TextSelectableByMouse);
  setContextMenuPolicy(Qt::NoContextMenu);  // it would take the keys, unheard
  setFont(pagefont());
  setPalette(yellowonblack(palette()));
  setFrameShape(QFrame::NoFrame);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
  window.cover(*this);
}

void PageView::settext(const QString& text) {
  const Unnoticed unnoticed;
  setPlainText(text);
}

void PageView::keyPressEvent(QKeyEvent* event) {
  const bool ours = window_.takekey(*event);
  if (ours && isVisible()) movecaret(*event);
  event->accept();  // else the window would get it as well
}

void PageView::movecaret(QKeyEvent& event) {
  const CaretPlace before = placeof(textCursor());
  QPlainTextEdit::keyPressEvent(&event);
  const auto press = virtualkey(event);
  if (!press || window_.game() == nullptr) return;
  if (const auto read = readmove(*press, before, placeof(textCursor()))) {
    caretmoved(*window_.game(), *read);
  }
}

}  // namespace duskmarch
