#include "platform/win32/page.h"

#include <algorithm>
#include <utility>

#include <commctrl.h>
#include <imm.h>

#include "platform/win32/accessiblename.h"
#include "platform/win32/keymap.h"
#include "platform/win32/screens.h"
#include "platform/win32/text.h"
#include "shell/speech/selfreading.h"

namespace duskmarch {

namespace {

constexpr DWORD style = WS_CHILD | WS_VSCROLL | ES_MULTILINE | ES_READONLY | ES_AUTOVSCROLL;
constexpr int points = 24;

std::wstring lineat(HWND edit, WPARAM number, LRESULT start) {
  const LRESULT length = SendMessageW(edit, EM_LINELENGTH, static_cast<WPARAM>(start), 0);
  std::wstring line(static_cast<std::size_t>(length) + 1, L'\0');
  line[0] = static_cast<wchar_t>(line.size());  // the room there is, at most
  const LRESULT copied =
      SendMessageW(edit, EM_GETLINE, number, reinterpret_cast<LPARAM>(line.data()));
  line.resize(static_cast<std::size_t>(copied));
  return line;
}

// By its place on the screen: the end of a line that goes on in the next one, and the beginning of
// that one, are the same place in the text.
WPARAM caretline(HWND edit) {
  POINT caret{};
  GetCaretPos(&caret);
  return HIWORD(SendMessageW(edit, EM_CHARFROMPOS, 0, MAKELPARAM(0, caret.y)));
}

}  // namespace

Win32Page::Win32Page(Win32Window& window, std::wstring name)
    : window_(window), name_(std::move(name)) {}

Win32Page::~Win32Page() {
  if (edit_ != nullptr) DestroyWindow(edit_);
}

void Win32Page::show(std::string_view text) {
  if (edit_ == nullptr) make();
  SetWindowTextW(edit_, utf16(text).c_str());
  SendMessageW(edit_, EM_SETSEL, 0, 0);
  SendMessageW(edit_, EM_SCROLLCARET, 0, 0);
  SetWindowPos(edit_, HWND_TOP, 0, 0, 0, 0,
               SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE | SWP_SHOWWINDOW);
}

void Win32Page::hide() {
  if (edit_ == nullptr || IsWindowVisible(edit_) == 0) return;
  window_.takefocusfrom(edit_);
  ShowWindow(edit_, SW_HIDE);
  window_.uncovered();
}

void Win32Page::focus() {
  if (edit_ != nullptr) window_.givefocus(edit_);
}

void Win32Page::setname(std::string_view name) {
  name_ = utf16(name);
  if (edit_ != nullptr) nameforreaders(edit_, name_);
}

void Win32Page::make() {
  edit_ = CreateWindowExW(0, WC_EDITW, nullptr, style, 0, 0, 0, 0, window_.handle(), nullptr,
                          GetModuleHandleW(nullptr), nullptr);
  if (edit_ == nullptr) throw PlatformError("no page could be made");
  SetWindowSubclass(edit_, &procedure, 0, reinterpret_cast<DWORD_PTR>(this));
  ImmAssociateContextEx(edit_, nullptr, 0);
  nameforreaders(edit_, name_);
  writelarge();
  window_.cover(edit_);
}

void Win32Page::writelarge() {
  GdiObject font = similarfont("Arial", devicepixels(window_.handle(), points * 96 / 72), true);
  SendMessageW(edit_, WM_SETFONT, reinterpret_cast<WPARAM>(font.get()), TRUE);
  font_ = std::move(font);
}

LRESULT CALLBACK Win32Page::procedure(HWND edit, UINT message, WPARAM first, LPARAM second,
                                      UINT_PTR /*id*/, DWORD_PTR self) {
  auto& page = *reinterpret_cast<Win32Page*>(self);
  if (page.edit_ == edit) return page.handle(message, first, second);
  return DefSubclassProc(edit, message, first, second);
}

LRESULT Win32Page::handle(UINT message, WPARAM first, LPARAM second) {
  switch (message) {
    case WM_KEYDOWN:
    case WM_SYSKEYDOWN:
      if (!window_.takekey(first, second)) {
        return SendMessageW(window_.handle(), message, first, second);
      }
      if (IsWindowVisible(edit_) != 0) movecaret(first, second);
      return 0;
    case WM_CHAR:
    case WM_SYSCHAR:
    case WM_CONTEXTMENU:  // it would take the keys, unheard
      return 0;
    case WM_DPICHANGED_AFTERPARENT: writelarge(); return 0;
    default: return DefSubclassProc(edit_, message, first, second);
  }
}

void Win32Page::movecaret(WPARAM key, LPARAM details) {
  const PressedKey pressed = pressedkey(key, details);
  const CaretPlace before = place();
  DefSubclassProc(edit_, WM_KEYDOWN, key, details);
  const bool ctrl = pressed.shift == modifier::ctrl;
  if (ctrl && key == 'C') SendMessageW(edit_, WM_COPY, 0, 0);
  if (ctrl && key == 'A') SendMessageW(edit_, EM_SETSEL, 0, -1);
  const auto press = virtualkey(pressed);
  if (!press || window_.game() == nullptr) return;
  if (const auto read = readmove(*press, before, place())) caretmoved(*window_.game(), *read);
}

CaretPlace Win32Page::place() {
  const WPARAM number = caretline(edit_);
  const LRESULT start = SendMessageW(edit_, EM_LINEINDEX, number, 0);
  const std::wstring line = lineat(edit_, number, start);
  const std::size_t column =
      std::min(caret_.place(edit_) - static_cast<std::size_t>(start), line.size());
  return {.linenumber = static_cast<int>(number),
          .line = utf8(line),
          .column = utf8(std::wstring_view(line).substr(0, column)).size()};
}

}  // namespace duskmarch
