// The input box and the message box.
#pragma once

#include "platform/desktop.h"
#include "platform/qt/window.h"

namespace duskmarch {

class QtDialogs : public Dialogs {
 public:
  explicit QtDialogs(QtWindow& window) : window_(window) {}

  std::string input(std::string_view title, std::string_view prompt) override;
  std::string choosedirection(std::string_view title, std::string_view prompt,
                              const ArrowAnswers& arrows) override;
  void message(std::string_view title, std::string_view text) override;

 private:
  QtWindow& window_;
};

}  // namespace duskmarch
