// A text page that covers the window while it is shown.
#pragma once

#include <QString>

#include "platform/desktop.h"
#include "platform/qt/window.h"

namespace duskmarch {

class PageView;

class QtPage : public Page {
 public:
  // `name` is what a screen reader calls the page.
  QtPage(QtWindow& window, QString name);

  void show(std::string_view text) override;
  void hide() override;
  void focus() override;
  void setname(std::string_view name) override;

 private:
  QtWindow& window_;
  QString name_;
  PageView* view_ =
      nullptr;  // owned by the window; made when it is first needed, for it costs time
};

}  // namespace duskmarch
