#include "platform/win32/dialogs.h"

#include "platform/win32/inputbox.h"
#include "platform/win32/text.h"
#include "shell/speech/keycodes.h"
#include "shell/speech/selfreading.h"

namespace duskmarch {

namespace {

std::wstring titletext(std::string_view title) {
  return title.empty() ? L"Duskmarch" : utf16(title);
}

}  // namespace

std::string Win32Dialogs::input(std::string_view title, std::string_view prompt) {
  return ask(title, prompt, {});
}

std::string Win32Dialogs::choosedirection(std::string_view title, std::string_view prompt,
                                          const ArrowAnswers& arrows) {
  return ask(title, prompt, arrows);
}

std::string Win32Dialogs::ask(std::string_view title, std::string_view prompt,
                              const ArrowAnswers& arrows) {
  Game* const game = window_.game();
  const auto heard = [game](std::string_view words) {
    if (game != nullptr) echotyped(*game, words);
  };
  InputBox box(titletext(title), prompt, heard, arrows);
  std::string typed;
  window_.runmodal(
      [game](int keycode) {
        if (game != nullptr) boxkey(*game, keycode);
      },
      [&] { typed = box.run(window_.handle()); });
  return typed;
}

void Win32Dialogs::message(std::string_view title, std::string_view text) {
  Game* const game = window_.game();
  const auto pressed = [game, text](int keycode) {
    if (game == nullptr) return;
    boxkey(*game, keycode);
    if (keycode == key::tab) echotyped(*game, text);  // to the one button that there is
  };
  window_.runmodal(pressed, [&] {
    MessageBoxW(window_.handle(), utf16(text).c_str(), titletext(title).c_str(), MB_OK);
  });
}

}  // namespace duskmarch
