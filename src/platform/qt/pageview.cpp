#include "platform/qt/pageview.h"

#include <QAccessible>
#include <QKeyEvent>
#include <QTextBlock>
#include <algorithm>
#include <array>

#include "platform/qt/fonts.h"
#include "platform/qt/text.h"
#include "shell/speech/selfreading.h"

namespace duskmarch {

namespace {

constexpr std::array linekeys = {Qt::Key_Up, Qt::Key_Down, Qt::Key_PageUp, Qt::Key_PageDown};
constexpr std::array characterkeys = {Qt::Key_Left, Qt::Key_Right, Qt::Key_Home, Qt::Key_End};

template <std::size_t size>
bool isone(const std::array<Qt::Key, size>& keys, int key) {
  return std::ranges::find(keys, key) != keys.end();
}

// The line of the caret as it is shown, that is a part of a long paragraph.
QTextCursor lineof(QTextCursor caret) {
  caret.movePosition(QTextCursor::StartOfLine);
  caret.movePosition(QTextCursor::EndOfLine, QTextCursor::KeepAnchor);
  return caret;
}

// The character, or the word, to the right of the caret; nothing at the end of a line.
QString righthand(QTextCursor caret, bool word) {
  caret.clearSelection();
  caret.movePosition(word ? QTextCursor::EndOfWord : QTextCursor::NextCharacter,
                     QTextCursor::KeepAnchor);
  return caret.selectedText().remove(QChar::ParagraphSeparator);
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

QFont pagefont() {
  QFont font = similarfont("Arial", 24);
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
  const int before = textCursor().position();
  const int linebefore = lineof(textCursor()).anchor();
  QPlainTextEdit::keyPressEvent(&event);
  const bool byline = isone(linekeys, event.key());
  if (window_.game() == nullptr || !(byline || isone(characterkeys, event.key()))) return;
  const QTextCursor line = lineof(textCursor());
  const bool word = event.modifiers().testFlag(Qt::ControlModifier);
  const bool wholeline = byline || event.key() == Qt::Key_End || line.anchor() != linebefore ||
                         textCursor().position() == before;
  caretmoved(*window_.game(),
             fromqt(wholeline ? line.selectedText() : righthand(textCursor(), word)));
}

}  // namespace duskmarch
