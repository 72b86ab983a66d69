// A box to type a line in: what it asks, the line, OK and Cancel.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "platform/desktop.h"
#include "platform/win32/fieldcaret.h"
#include "platform/win32/handles.h"

namespace duskmarch {

class InputBox {
 public:
  // `heard` gets what a screen reader would say while the player types and moves about.
  // While nothing is typed, an arrow that `arrows` has an answer for closes the box with it.
  InputBox(std::wstring title, std::string_view prompt, std::function<void(std::string_view)> heard,
           const ArrowAnswers& arrows = {});
  InputBox(const InputBox&) = delete;
  InputBox& operator=(const InputBox&) = delete;

  // Returns when the player has closed it: what was typed, or nothing when it was cancelled.
  std::string run(HWND owner);

 private:
  static INT_PTR CALLBACK procedure(HWND box, UINT message, WPARAM first, LPARAM second);
  static LRESULT CALLBACK partprocedure(HWND part, UINT message, WPARAM first, LPARAM second,
                                        UINT_PTR id, DWORD_PTR self);
  INT_PTR handle(UINT message, WPARAM first, LPARAM second);
  HWND add(const wchar_t* kind, const std::wstring& text, DWORD style, int id);
  void makeparts();
  void layout();
  LONG letters() const;
  void centre();
  void moveto(LONG left, LONG top);
  SIZE roomforprompt() const;
  void focused(HWND part);
  void typed();
  void caretkey(WPARAM key, LPARAM details);
  std::wstring text() const;
  std::size_t caret();  // in bytes of the text before it

  std::wstring title_;
  std::string prompt_;
  std::function<void(std::string_view)> heard_;
  ArrowAnswers arrows_;
  HWND box_ = nullptr;
  HWND label_ = nullptr;
  HWND field_ = nullptr;
  HWND ok_ = nullptr;
  HWND cancel_ = nullptr;
  GdiObject font_;
  FieldCaret caret_;
  std::string before_;  // the text as it was last told
  std::string answer_;
};

}  // namespace duskmarch
