#include "platform/qt/page.h"

#include <utility>

#include "platform/qt/pageview.h"
#include "platform/qt/text.h"

namespace duskmarch {

QtPage::QtPage(QtWindow& window, QString name) : window_(window), name_(std::move(name)) {}

void QtPage::show(std::string_view text) {
  if (view_ == nullptr) view_ = new PageView(window_, name_);
  view_->settext(toqt(text));
  view_->raise();
  view_->show();
}

void QtPage::hide() {
  if (view_ == nullptr || view_->isHidden()) return;
  if (view_->hasFocus()) window_.setFocus();
  view_->hide();
  window_.uncovered();
}

void QtPage::focus() {
  if (view_ != nullptr) view_->setFocus();
}

void QtPage::setname(std::string_view name) {
  name_ = toqt(name);
  if (view_ != nullptr) view_->setAccessibleName(name_);
}

}  // namespace duskmarch
