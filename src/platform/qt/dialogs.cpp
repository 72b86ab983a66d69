#include "platform/qt/dialogs.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>

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

// What `now` has more than `before`, which differs from it in one place.
QString typed(const QString& before, const QString& now) {
  const auto added = now.size() - before.size();
  if (added <= 0) return {};
  const auto [changed, ignored] =
      std::mismatch(now.begin(), now.end(), before.begin(), before.end());
  return now.mid(changed - now.begin(), added);
}

void echo(Game& game, QLineEdit& field) {
  QObject::connect(
      &field, &QLineEdit::textEdited, [&game, before = QString()](const QString& now) mutable {
        if (const QString added = typed(std::exchange(before, now), now); !added.isEmpty()) {
          echotyped(game, fromqt(added));
        }
      });
}

}  // namespace

std::string QtDialogs::input(std::string_view title, std::string_view prompt) {
  Box box(window_, title, prompt, QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
  QLineEdit field;
  box.add(field);
  if (Game* game = window_.game()) echo(*game, field);
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
