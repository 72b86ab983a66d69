// A text page that covers the window while it is shown.
#pragma once

#include <string>

#include "platform/desktop.h"
#include "platform/frontend/reading.h"
#include "platform/win32/fieldcaret.h"
#include "platform/win32/window.h"

namespace duskmarch {

class Win32Page : public Page {
 public:
  // `name` is what a screen reader calls the page.
  Win32Page(Win32Window& window, std::wstring name);
  Win32Page(const Win32Page&) = delete;
  Win32Page& operator=(const Win32Page&) = delete;
  ~Win32Page() override;

  void show(std::string_view text) override;
  void hide() override;
  void focus() override;
  void setname(std::string_view name) override;

 private:
  static LRESULT CALLBACK procedure(HWND edit, UINT message, WPARAM first, LPARAM second,
                                    UINT_PTR id, DWORD_PTR self);
  LRESULT handle(UINT message, WPARAM first, LPARAM second);
  void make();
  void writelarge();
  void movecaret(WPARAM key, LPARAM details);
  CaretPlace place();

  Win32Window& window_;
  std::wstring name_;
  HWND edit_ = nullptr;  // made when it is first needed
  GdiObject font_;
  FieldCaret caret_;
};

}  // namespace duskmarch
