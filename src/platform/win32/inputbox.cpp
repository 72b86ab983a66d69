#include "platform/win32/inputbox.h"

#include <algorithm>
#include <utility>

#include <commctrl.h>

#include "platform/frontend/reading.h"
#include "platform/frontend/typed.h"
#include "platform/win32/fonts.h"
#include "platform/win32/keymap.h"
#include "platform/win32/screens.h"
#include "platform/win32/text.h"

namespace duskmarch {

namespace {

// In the game's pixels.
constexpr int margin = 12;
constexpr int usualwidth = 400;
constexpr int around = 12;  // of letters in the field and the buttons, above and below together
constexpr int buttonwidth = 88;
constexpr int labelid = 100;
constexpr int fieldid = 101;

constexpr DWORD boxstyle = WS_POPUP | WS_CAPTION | WS_SYSMENU | DS_MODALFRAME | DS_NOIDLEMSG;

void place(HWND part, LONG left, LONG top, SIZE size) {
  SetWindowPos(part, nullptr, left, top, size.cx, size.cy, SWP_NOZORDER | SWP_NOACTIVATE);
}

// Of the part of the screen that is free where the window is, what the text of a box may take.
SIZE mostroom(HWND window) {
  const RECT free = freearea(window);
  const LONG rest = devicepixels(window, 200);
  return {free.right - free.left - rest, free.bottom - free.top - rest};
}

SIZE measured(HDC context, const std::wstring& text, LONG width) {
  RECT area = {0, 0, width, 0};
  DrawTextW(context, text.c_str(), static_cast<int>(text.size()), &area,
            DT_CALCRECT | DT_WORDBREAK | DT_EDITCONTROL | DT_NOPREFIX | DT_EXPANDTABS);
  return {std::max(area.right, width), area.bottom};
}

}  // namespace

InputBox::InputBox(std::wstring title, std::string_view prompt,
                   std::function<void(std::string_view)> heard, const ArrowAnswers& arrows)
    : title_(std::move(title)), prompt_(prompt), heard_(std::move(heard)), arrows_(arrows) {}

std::string InputBox::run(HWND owner) {
  // Without parts, class and title: they come when it is made.
  struct alignas(DWORD) Template {
    DLGTEMPLATE box;
    WORD menu = 0;
    WORD kind = 0;
    WORD title = 0;
  };
  const Template empty = {.box = {.style = boxstyle,
                                  .dwExtendedStyle = WS_EX_DLGMODALFRAME,
                                  .cdit = 0,
                                  .x = 0,
                                  .y = 0,
                                  .cx = 0,
                                  .cy = 0}};
  DialogBoxIndirectParamW(GetModuleHandleW(nullptr), &empty.box, owner, &procedure,
                          reinterpret_cast<LPARAM>(this));
  return answer_;
}

INT_PTR CALLBACK InputBox::procedure(HWND box, UINT message, WPARAM first, LPARAM second) {
  if (message == WM_INITDIALOG) {
    SetWindowLongPtrW(box, DWLP_USER, second);
    reinterpret_cast<InputBox*>(second)->box_ = box;
  }
  auto* const self = reinterpret_cast<InputBox*>(GetWindowLongPtrW(box, DWLP_USER));
  return self != nullptr ? self->handle(message, first, second) : FALSE;
}

INT_PTR InputBox::handle(UINT message, WPARAM first, LPARAM second) {
  switch (message) {
    case WM_INITDIALOG:
      makeparts();
      layout();
      centre();
      SetFocus(field_);
      return FALSE;  // the focus is where it belongs
    case WM_DPICHANGED: {
      const auto& proposed = *reinterpret_cast<const RECT*>(second);
      layout();
      moveto(proposed.left, proposed.top);
      return TRUE;
    }
    case WM_COMMAND:
      if (LOWORD(first) == fieldid && HIWORD(first) == EN_CHANGE) typed();
      if (LOWORD(first) == IDOK) answer_ = utf8(text());
      if (LOWORD(first) == IDOK || LOWORD(first) == IDCANCEL) EndDialog(box_, LOWORD(first));
      return TRUE;
    default: return FALSE;
  }
}

HWND InputBox::add(const wchar_t* kind, const std::wstring& text, DWORD style, int id) {
  const DWORD edge = id == fieldid ? WS_EX_CLIENTEDGE : 0;
  HWND part = CreateWindowExW(edge, kind, text.c_str(), WS_CHILD | WS_VISIBLE | style, 0, 0, 0, 0,
                              box_, reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)),
                              GetModuleHandleW(nullptr), nullptr);
  SetWindowSubclass(part, &partprocedure, 0, reinterpret_cast<DWORD_PTR>(this));
  return part;
}

// A screen reader reads the text that comes just before a field as its label.
void InputBox::makeparts() {
  SetWindowTextW(box_, title_.c_str());
  label_ = add(WC_STATICW, utf16(prompt_), SS_LEFT | SS_NOPREFIX | SS_EDITCONTROL, labelid);
  field_ = add(WC_EDITW, L"", WS_TABSTOP | ES_AUTOHSCROLL, fieldid);
  ok_ = add(WC_BUTTONW, L"OK", WS_TABSTOP | BS_DEFPUSHBUTTON, IDOK);
  cancel_ = add(WC_BUTTONW, L"Cancel", WS_TABSTOP | BS_PUSHBUTTON, IDCANCEL);
}

// As wide as a box is as a rule, or as much wider as it takes for the prompt to be seen whole.
SIZE InputBox::roomforprompt() const {
  const WindowDc screen(box_);
  const Selected font(screen.context(), font_.get());
  const SIZE most = mostroom(box_);
  const std::wstring words = utf16(prompt_);
  LONG width = std::min<LONG>(devicepixels(box_, usualwidth), most.cx);
  SIZE room = measured(screen.context(), words, width);
  while (room.cy > most.cy && width < most.cx) {
    width = std::min(width * 5 / 4, most.cx);
    room = measured(screen.context(), words, width);
  }
  return room;
}

void InputBox::layout() {
  GdiObject font = boxfont(GetDpiForWindow(box_));
  for (HWND part : {label_, field_, ok_, cancel_}) {
    SendMessageW(part, WM_SETFONT, reinterpret_cast<WPARAM>(font.get()), TRUE);
  }
  font_ = std::move(font);
  const auto scaled = [this](int pixels) { return static_cast<LONG>(devicepixels(box_, pixels)); };
  const LONG gap = scaled(margin);
  const LONG line = letters() + scaled(around);
  const SIZE button = {scaled(buttonwidth), line};
  const SIZE prompt = roomforprompt();
  const LONG fieldtop = gap + prompt.cy + gap / 2;
  const LONG buttontop = fieldtop + line + gap;
  const LONG width = prompt.cx + 2 * gap;
  place(label_, gap, gap, prompt);
  place(field_, gap, fieldtop, {prompt.cx, line});
  place(cancel_, width - gap - button.cx, buttontop, button);
  place(ok_, width - 2 * gap - 2 * button.cx, buttontop, button);

  RECT area = {0, 0, width, buttontop + button.cy + gap};
  AdjustWindowRectExForDpi(&area, boxstyle, FALSE, WS_EX_DLGMODALFRAME, GetDpiForWindow(box_));
  SetWindowPos(box_, nullptr, 0, 0, area.right - area.left, area.bottom - area.top,
               SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

// In device pixels.
LONG InputBox::letters() const {
  const WindowDc screen(box_);
  const Selected font(screen.context(), font_.get());
  TEXTMETRICW metrics{};
  GetTextMetricsW(screen.context(), &metrics);
  return metrics.tmHeight;
}

void InputBox::centre() {
  RECT area{};
  RECT owner{};
  GetWindowRect(box_, &area);
  GetWindowRect(GetWindow(box_, GW_OWNER), &owner);
  moveto((owner.left + owner.right - area.right + area.left) / 2,
         (owner.top + owner.bottom - area.bottom + area.top) / 2);
}

void InputBox::moveto(LONG left, LONG top) {
  RECT area{};
  GetWindowRect(box_, &area);
  OffsetRect(&area, left - area.left, top - area.top);
  area = onscreen(area);
  place(box_, area.left, area.top, {area.right - area.left, area.bottom - area.top});
}

LRESULT CALLBACK InputBox::partprocedure(HWND part, UINT message, WPARAM first, LPARAM second,
                                         UINT_PTR /*id*/, DWORD_PTR self) {
  auto& box = *reinterpret_cast<InputBox*>(self);
  if (message == WM_CONTEXTMENU) return 0;  // it would take the keys, unheard
  if (message == WM_KEYDOWN && part == box.field_) {
    box.caretkey(first, second);
    return 0;
  }
  const LRESULT result = DefSubclassProc(part, message, first, second);
  // From elsewhere in the box: of the box itself, title and prompt tell.
  if (message == WM_SETFOCUS && IsChild(box.box_, reinterpret_cast<HWND>(first)) != 0) {
    box.focused(part);
  }
  return result;
}

void InputBox::focused(HWND part) {
  if (part == ok_) heard_("OK");
  if (part == cancel_) heard_("Cancel");
  if (part != field_) return;
  caret_ = {};  // what Tab selects is selected from the start
  heard_(before_.empty() ? prompt_ : prompt_ + "  " + before_);
}

void InputBox::typed() {
  const std::string before = std::exchange(before_, utf8(text()));
  heard_(difference(before, before_));
}

void InputBox::caretkey(WPARAM key, LPARAM details) {
  const KeyPress press = virtualkey(pressedkey(key, details)).value_or(KeyPress{});
  if (const std::string_view answer = answerof(press, arrows_);
      before_.empty() && !answer.empty()) {
    answer_ = answer;
    EndDialog(box_, IDOK);
    return;
  }
  const std::string unchanged = before_;
  const std::size_t from = caret();
  DefSubclassProc(field_, WM_KEYDOWN, key, details);
  if (before_ != unchanged) return;  // it was told
  if (const auto read = readfield(press, before_, from, caret())) heard_(*read);
}

std::wstring InputBox::text() const {
  std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(field_)) + 1, L'\0');
  const int size = GetWindowTextW(field_, text.data(), static_cast<int>(text.size()));
  text.resize(static_cast<std::size_t>(size));
  return text;
}

std::size_t InputBox::caret() {
  return utf8(text().substr(0, caret_.place(field_))).size();
}

}  // namespace duskmarch
