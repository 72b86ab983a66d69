// The input box and the message box.
#pragma once

#include "platform/desktop.h"
#include "platform/win32/window.h"

namespace duskmarch {

class Win32Dialogs : public Dialogs {
 public:
  explicit Win32Dialogs(Win32Window& window) : window_(window) {}

  std::string input(std::string_view title, std::string_view prompt) override;
  std::string choosedirection(std::string_view title, std::string_view prompt,
                              const ArrowAnswers& arrows) override;
  void message(std::string_view title, std::string_view text) override;

 private:
  std::string ask(std::string_view title, std::string_view prompt, const ArrowAnswers& arrows);

  Win32Window& window_;
};

}  // namespace duskmarch
