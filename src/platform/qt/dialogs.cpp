#include "platform/qt/dialogs.h"

#include <QApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>
#include <memory>
#include <string>
#include <utility>

#include "platform/frontend/reading.h"
#include "platform/frontend/typed.h"
#include "platform/qt/keymap.h"
#include "platform/qt/text.h"
#include "shell/speech/selfreading.h"

namespace duskmarch {

namespace {

// A text, what it is about, and the buttons.
class Box : public QDialog {
 public:
  Box(QtWindow& parent, std::string_view title, std::string_view text,
      QDialogButtonBox::StandardButtons buttons)
      : QDialog(&parent),
        window_(parent),
        game_(parent.game()),
        told_(toqt(text)),
        text_(toqt(text).replace(u'&', QStringLiteral("&&"))),
        layout_(this) {
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
    connect(qApp, &QApplication::focusChanged, this, &Box::tellfocus);
    qApp->installEventFilter(this);
  }

  void add(QWidget& field) {
    layout_.insertWidget(1, &field);
    text_.setBuddy(&field);  // which is how a screen reader reads the text with the field
    field.setFocus();
  }

  // Tells of its end, and no more: the window closes it. Keys that still come are the game's.
  void done(int result) override {
    setResult(result);
    over_ = true;
    Q_EMIT finished(result);
  }

  bool eventFilter(QObject* object, QEvent* event) override {
    if (event->type() != QEvent::KeyPress) return false;
    auto& key = static_cast<QKeyEvent&>(*event);
    if (over_) {
      const auto* widget = qobject_cast<QWidget*>(object);
      return widget != nullptr && widget->window() == this && window_.takekey(key);
    }
    // What the box itself gets has been through its parts, which may have told something since.
    if (object != this) tellkey(key);
    return false;
  }

  // What a screen reader would say of it, where there is none.
  void tell(std::string_view text) {
    if (game_ != nullptr) echotyped(*game_, text);
  }
  void tell(const QString& text) { tell(fromqt(text)); }

 protected:
  bool focusNextPrevChild(bool next) override {
    const QWidget* before = focusWidget();
    QDialog::focusNextPrevChild(next);
    if (focusWidget() == before) tell(told_);
    return true;  // else the parts around would tell it as well
  }

 private:
  void tellkey(const QKeyEvent& key) {
    const auto press = virtualkey(key);
    if (game_ != nullptr) boxkey(*game_, press ? press->keycode : 0);
  }

  // Moving on inside the box; of the box itself, title and text tell.
  void tellfocus(QWidget* before, QWidget* now) {
    if (!isAncestorOf(before) || !isAncestorOf(now)) return;
    if (const auto* button = qobject_cast<QPushButton*>(now)) tell(button->text().remove(u'&'));
    if (const auto* field = qobject_cast<QLineEdit*>(now)) {
      tell(field->text().isEmpty() ? told_ : told_ + QStringLiteral("  ") + field->text());
    }
  }

  QtWindow& window_;
  Game* game_;
  QString told_;
  bool over_ = false;
  QLabel text_;
  QDialogButtonBox buttons_;
  QVBoxLayout layout_;
};

// A line to type in that tells what it hears, as a screen reader would.
class Field : public QLineEdit {
 public:
  explicit Field(Box& box, ArrowAnswers arrows = {}) : box_(box), arrows_(arrows) {
    setContextMenuPolicy(Qt::NoContextMenu);  // it would take the keys, unheard
    connect(this, &QLineEdit::textEdited, this, [this](const QString& now) {
      const std::string before = fromqt(std::exchange(before_, now));
      const std::string typed = fromqt(now);
      box_.tell(difference(before, typed));
    });
  }

 protected:
  void keyPressEvent(QKeyEvent* event) override {
    const KeyPress press = virtualkey(*event).value_or(KeyPress{});
    const std::string_view answer = answerof(press, arrows_);
    if (text().isEmpty() && !answer.empty()) {
      setText(toqt(answer));
      return box_.accept();
    }
    const QString unchanged = text();
    const std::size_t place = caret();
    QLineEdit::keyPressEvent(event);
    if (text() != unchanged) return;  // it was told
    if (const auto read = readfield(press, fromqt(text()), place, caret())) box_.tell(*read);
  }

 private:
  // In bytes of the text before it.
  std::size_t caret() const { return fromqt(text().left(cursorPosition())).size(); }

  Box& box_;
  ArrowAnswers arrows_;
  QString before_;
};

std::string ask(QtWindow& window, std::string_view title, std::string_view prompt,
                const ArrowAnswers& arrows) {
  auto box =
      std::make_unique<Box>(window, title, prompt, QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
  auto* field = new Field(*box, arrows);  // the box's own
  box->add(*field);
  window.runmodal(*box);
  std::string typed = box->result() == QDialog::Accepted ? fromqt(field->text()) : std::string();
  window.closelater(std::move(box));
  return typed;
}

}  // namespace

std::string QtDialogs::input(std::string_view title, std::string_view prompt) {
  return ask(window_, title, prompt, {});
}

std::string QtDialogs::choosedirection(std::string_view title, std::string_view prompt,
                                       const ArrowAnswers& arrows) {
  return ask(window_, title, prompt, arrows);
}

void QtDialogs::message(std::string_view title, std::string_view text) {
  auto box = std::make_unique<Box>(window_, title, text, QDialogButtonBox::Ok);
  // A screen reader does not read a button's text with it, and passes over short texts alone.
  box->setAccessibleDescription(toqt(text));
  window_.runmodal(*box);
  window_.closelater(std::move(box));
}

}  // namespace duskmarch
