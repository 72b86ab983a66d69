#include "platform/qt/dialogs.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>
#include <ranges>
#include <utility>

#include "platform/qt/text.h"
#include "shell/selfreading.h"

namespace duskmarch {

namespace {

// A text, what it is about, and the buttons.
class Box : public QDialog {
 public:
  Box(QWidget& parent, std::string_view title, std::string_view text,
      QDialogButtonBox::StandardButtons buttons)
      : QDialog(&parent), text_(toqt(text).replace(u'&', QStringLiteral("&&"))), layout_(this) {
    setWindowTitle(title.empty() ? QStringLiteral("Duskmarch") : toqt(title));
    text_.setTextFormat(Qt::PlainText);
    text_.setWordWrap(true);
    text_.setMinimumWidth(400);
    layout_.addWidget(&text_);
    buttons_.setStandardButtons(buttons);
    layout_.addWidget(&buttons_);
    text_.setBuddy(buttons_.button(QDialogButtonBox::Ok));
    connect(&buttons_, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(&buttons_, &QDialogButtonBox::rejected, this, &QDialog::reject);
  }

  void add(QWidget& field) {
    layout_.insertWidget(1, &field);
    text_.setBuddy(&field);  // which is how a screen reader reads the text with the field
    field.setFocus();
  }

 private:
  QLabel text_;
  QDialogButtonBox buttons_;
  QVBoxLayout layout_;
};

// What was typed to make `now` of `before`, which differ in one place; or what was taken away.
QString difference(const QString& before, const QString& now) {
  const auto start = std::ranges::mismatch(before, now);
  const std::ranges::subrange beforetail(start.in1, before.end());
  const std::ranges::subrange nowtail(start.in2, now.end());
  const auto end =
      std::ranges::mismatch(beforetail | std::views::reverse, nowtail | std::views::reverse);
  const QString typed(start.in2, end.in2.base() - start.in2);
  return typed.isEmpty() ? QString(start.in1, end.in1.base() - start.in1) : typed;
}

// A line to type in that tells what it hears, as a screen reader would.
class Field : public QLineEdit {
 public:
  explicit Field(Game* game) : game_(game) {
    setContextMenuPolicy(Qt::NoContextMenu);  // it would take the keys, unheard
    connect(this, &QLineEdit::textEdited, this,
            [this](const QString& now) { echo(difference(std::exchange(before_, now), now)); });
  }

 protected:
  void keyPressEvent(QKeyEvent* event) override {
    const QString unchanged = text();
    const int place = cursorPosition();
    QLineEdit::keyPressEvent(event);
    if (text() == unchanged && cursorPosition() != place) echo(text().mid(cursorPosition(), 1));
  }

 private:
  void echo(const QString& letters) {
    if (game_ != nullptr && !letters.isEmpty()) echotyped(*game_, fromqt(letters));
  }

  Game* game_;
  QString before_;
};

}  // namespace

std::string QtDialogs::input(std::string_view title, std::string_view prompt) {
  Box box(window_, title, prompt, QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
  Field field(window_.game());
  box.add(field);
  window_.runmodal(box);
  return box.result() == QDialog::Accepted ? fromqt(field.text()) : std::string();
}

void QtDialogs::message(std::string_view title, std::string_view text) {
  Box box(window_, title, text, QDialogButtonBox::Ok);
  // A screen reader does not read a button's text with it, and passes over short texts alone.
  box.setAccessibleDescription(toqt(text));
  window_.runmodal(box);
}

}  // namespace duskmarch
