#include "platform/win32/window.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include <imm.h>

#include "platform/frontend/heldkeys.h"
#include "platform/win32/keymap.h"
#include "platform/win32/resources.h"
#include "platform/win32/screenreader.h"
#include "platform/win32/screens.h"
#include "platform/win32/text.h"
#include "shell/keyboard.h"
#include "shell/speech/busyfiles.h"
#include "shell/startup.h"

namespace duskmarch {

namespace {

constexpr auto classname = L"Duskmarch";
constexpr UINT callposted = WM_APP;
constexpr UINT_PTR readertimer = 1;
constexpr UINT_PTR filestimer = 2;
constexpr UINT betweentries = 20;    // milliseconds
constexpr UINT betweenlooks = 1000;  // milliseconds
constexpr DWORD style = WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN;
constexpr SIZE startsize{1288, 660};
constexpr SIZE smallestsize{320, 200};

void registerclass(WNDPROC procedure) {
  WNDCLASSEXW description{};
  description.cbSize = sizeof description;
  description.lpfnWndProc = procedure;
  description.hInstance = GetModuleHandleW(nullptr);
  description.hIcon = LoadIconW(description.hInstance, MAKEINTRESOURCEW(programicon));
  description.hCursor = LoadCursorW(nullptr, IDC_ARROW);
  description.lpszClassName = classname;
  RegisterClassExW(&description);
}

// The window's size for an inner size in the game's pixels.
SIZE framed(HWND window, SIZE inner) {
  RECT area = {0, 0, devicepixels(window, inner.cx), devicepixels(window, inner.cy)};
  AdjustWindowRectExForDpi(&area, style, FALSE, 0, GetDpiForWindow(window));
  return {area.right - area.left, area.bottom - area.top};
}

void place(HWND window, const RECT& area) {
  SetWindowPos(window, nullptr, area.left, area.top, area.right - area.left, area.bottom - area.top,
               SWP_NOZORDER | SWP_NOACTIVATE);
}

SIZE innersize(HWND window) {
  RECT inner{};
  GetClientRect(window, &inner);
  return {inner.right, inner.bottom};
}

// What the system has for the windows now. False when the program is to end.
bool handleevents() {
  MSG message;
  while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != 0) {
    if (message.message == WM_QUIT) {
      PostQuitMessage(0);  // for whoever waits further out
      return false;
    }
    // Keys are not translated: the window and its pages take no characters, and a dead key that
    // was pressed here must not join what is typed into a box. What no key stands behind has
    // nothing but its character.
    if (message.wParam == VK_PACKET && message.message == WM_KEYDOWN) TranslateMessage(&message);
    DispatchMessageW(&message);
  }
  return true;
}

bool ishighcontrast() {
  HIGHCONTRASTW contrast{};
  contrast.cbSize = sizeof contrast;
  return SystemParametersInfoW(SPI_GETHIGHCONTRAST, sizeof contrast, &contrast, 0) != 0 &&
         (contrast.dwFlags & HCF_HIGHCONTRASTON) != 0;
}

// Yellow on black, the brush included.
LRESULT colourpage(HDC context) {
  SetTextColor(context, RGB(255, 255, 0));
  SetBkColor(context, RGB(0, 0, 0));
  return reinterpret_cast<LRESULT>(GetStockObject(BLACK_BRUSH));
}

}  // namespace

Win32Window::Win32Window() : keywatch_([this](const MSG& message) { return drops(message); }) {
  registerclass(&procedure);
  handle_ = CreateWindowExW(0, classname, L"Duskmarch", style, CW_USEDEFAULT, CW_USEDEFAULT, 0, 0,
                            nullptr, nullptr, GetModuleHandleW(nullptr), this);
  if (handle_ == nullptr) throw PlatformError("no window could be made");
  ImmAssociateContextEx(handle_, nullptr, 0);  // letters are orders here, not text
  RECT area{};
  GetWindowRect(handle_, &area);
  const SIZE size = framed(handle_, startsize);
  place(handle_, onscreen({area.left, area.top, area.left + size.cx, area.top + size.cy}));
  fitpicture();
}

Win32Window::~Win32Window() {
  game_ = nullptr;
  DestroyWindow(handle_);
}

void Win32Window::run(int how) {
  ShowWindow(handle_, how);
  SetForegroundWindow(handle_);
  SetTimer(handle_, readertimer, betweenlooks, nullptr);
  while (handleevents()) WaitMessage();
  keepallfiles();
}

void Win32Window::end() {
  if (game_ != nullptr) game_->ended = true;
  PostQuitMessage(0);  // which closes the boxes too
}

void Win32Window::post(std::function<void()> call) {
  const std::lock_guard lock(postmutex_);
  posted_.push_back(std::move(call));
  PostMessageW(handle_, callposted, 0, 0);
}

void Win32Window::makepostedcalls() {
  std::vector<std::function<void()>> calls;
  {
    const std::lock_guard lock(postmutex_);
    calls.swap(posted_);
  }
  for (const auto& call : calls) call();
}

void Win32Window::lookforreader() {
  const bool before = std::exchange(readerseen_, readerflag());
  if (readerseen_ && !before && game_ != nullptr) readerfound(*game_);
}

void Win32Window::keepallfiles() {
  while (game_ != nullptr && trybusyfilesagain(*game_)) Sleep(betweentries);
}

void Win32Window::keepbusyfiles() {
  if (game_ == nullptr || !trybusyfilesagain(*game_)) KillTimer(handle_, filestimer);
}

void Win32Window::cover(HWND page) {
  pages_.push_back(page);
  placepages();
}

void Win32Window::uncovered() {
  stale_ = true;
  InvalidateRect(handle_, nullptr, FALSE);
}

void Win32Window::givefocus(HWND page) {
  focus_ = page;
  SetFocus(page != nullptr ? page : handle_);
}

void Win32Window::takefocusfrom(HWND page) {
  if (focus_ != page) return;
  focus_ = nullptr;
  if (GetFocus() == page) SetFocus(handle_);  // else a box has it, or another program
}

bool Win32Window::takekey(WPARAM key, LPARAM details) {
  if (forthesystem(pressedkey(key, details))) return false;
  const auto time = static_cast<DWORD>(GetMessageTime());
  if (const auto press = virtualkey(key, details, time); press && game_ != nullptr) {
    takepress(*press);
  }
  return true;
}

void Win32Window::takepress(KeyPress press) {
  keypress(*game_, press);
  if (!game_->busyfiles.empty()) SetTimer(handle_, filestimer, betweentries, nullptr);
}

// Letters from a braille keyboard, or dictated.
void Win32Window::takecharacter(WPARAM character) {
  const WPARAM letter = character & ~WPARAM{0x20};
  if (letter < 'A' || letter > 'Z' || game_ == nullptr) return;
  takepress({static_cast<int>(letter), modifier::none});
}

void Win32Window::runmodal(const std::function<void(int keycode)>& pressed,
                           const std::function<void()>& box) {
  const auto outer = std::exchange(boxkeypressed_, pressed);
  box();
  boxkeypressed_ = outer;
  uncovered();
}

// A reader keeps silent about a name that it knows already, and may look too late to see another
// one in between: a space at the end, there or not, makes each one new.
void Win32Window::settitle(std::string_view title) {
  const std::string before = std::exchange(title_, std::string(title));
  if (title_ == before + ' ') return;  // it only prepares for the same title again
  longer_ = !longer_;
  SetWindowTextW(handle_, utf16(longer_ ? title_ + ' ' : title_).c_str());
}

Canvas* Win32Window::spokenline() {
  InvalidateRect(handle_, nullptr, FALSE);
  return picture_.spokenline();
}

Canvas* Win32Window::map(int right, int bottom) {
  InvalidateRect(handle_, nullptr, FALSE);
  return picture_.map(right, bottom);
}

void Win32Window::processevents() {
  handleevents();
}

void Win32Window::wait(std::chrono::milliseconds duration) {
  using Clock = std::chrono::steady_clock;
  const auto until = Clock::now() + duration;
  if (game_ != nullptr) handlewaitingkeys(*game_);
  while (handleevents()) {
    const auto left = std::chrono::ceil<std::chrono::milliseconds>(until - Clock::now());
    if (left.count() <= 0) return;
    MsgWaitForMultipleObjectsEx(0, nullptr, static_cast<DWORD>(left.count()), QS_ALLINPUT,
                                MWMO_INPUTAVAILABLE);
  }
}

// They are for the reader of this window. Another one that has become active meanwhile would take
// them for its own; only what was pressed is let go in any case.
void Win32Window::sendkey(int keycode, bool down) {
  if (down && GetForegroundWindow() != handle_) return;
  keybd_event(static_cast<BYTE>(keycode), 0, down ? 0 : KEYEVENTF_KEYUP, 0);
}

// True for an Enter or a Space that comes again because it is held.
bool Win32Window::drops(const MSG& message) {
  if (message.message == WM_KEYUP || message.message == WM_SYSKEYUP) return false;
  const auto press = virtualkey(message.wParam, message.lParam, message.time);
  const int keycode = press ? press->keycode : 0;
  if (actsonce(keycode) && (HIWORD(message.lParam) & KF_REPEAT) != 0) return true;
  const bool ours = message.hwnd == handle_ || IsChild(handle_, message.hwnd) != 0;
  if (!ours && boxkeypressed_) boxkeypressed_(keycode);
  return false;
}

LRESULT CALLBACK Win32Window::procedure(HWND window, UINT message, WPARAM first, LPARAM second) {
  if (message == WM_NCCREATE) {
    auto* const self =
        static_cast<Win32Window*>(reinterpret_cast<CREATESTRUCTW*>(second)->lpCreateParams);
    self->handle_ = window;
    SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(self));
  }
  auto* const self = reinterpret_cast<Win32Window*>(GetWindowLongPtrW(window, GWLP_USERDATA));
  return self != nullptr ? self->handle(message, first, second)
                         : DefWindowProcW(window, message, first, second);
}

LRESULT Win32Window::handle(UINT message, WPARAM first, LPARAM second) {
  switch (message) {
    case WM_KEYDOWN:
    case WM_SYSKEYDOWN:
      if (takekey(first, second)) return 0;
      // Its menu opens by the character, which this key is not made.
      if (first == VK_SPACE) return DefWindowProcW(handle_, WM_SYSCOMMAND, SC_KEYMENU, L' ');
      break;
    case WM_SYSCOMMAND:
      if ((first & 0xFFF0U) == SC_KEYMENU && second == 0) return 0;  // Alt alone, or F10
      break;
    case WM_CHAR: takecharacter(first); return 0;
    case WM_PAINT: paint(); return 0;
    case WM_ERASEBKGND: return 1;
    case WM_CTLCOLORSTATIC:
      if (!ishighcontrast()) return colourpage(reinterpret_cast<HDC>(first));
      break;
    case WM_SIZE: resized(); return 0;
    case WM_DPICHANGED: rescaled(*reinterpret_cast<const RECT*>(second)); return 0;
    case WM_SETFOCUS:  // as when it is no longer minimised
      if (focus_ != nullptr) SetFocus(focus_);
      return 0;
    case WM_ACTIVATE:
      if (LOWORD(first) != WA_INACTIVE && HIWORD(first) == 0) activated();
      return 0;
    case WM_GETMINMAXINFO: {
      const SIZE size = framed(handle_, smallestsize);
      reinterpret_cast<MINMAXINFO*>(second)->ptMinTrackSize = {size.cx, size.cy};
      return 0;
    }
    case WM_QUERYENDSESSION: return TRUE;  // nothing takes longer to keep than WM_ENDSESSION may
    case WM_ENDSESSION:
      if (first == FALSE) return 0;
      end();
      keepallfiles();  // the program may not get beyond this message
      return 0;
    case WM_CLOSE: end(); return 0;
    case WM_TIMER:
      if (first == readertimer) lookforreader();
      if (first == filestimer) keepbusyfiles();
      return 0;
    case callposted: makepostedcalls(); return 0;
    default: break;
  }
  return DefWindowProcW(handle_, message, first, second);
}

void Win32Window::paint() {
  if (game_ != nullptr && std::exchange(stale_, false)) duskmarch::repaint(*game_);
  PAINTSTRUCT painted;
  HDC screen = BeginPaint(handle_, &painted);
  if (const SIZE size = innersize(handle_); size.cx > 0 && size.cy > 0) {
    HDC context = buffer_.context(screen, size);
    GdiPainter painter(context, fonts_);
    picture_.paint(painter);
    BitBlt(screen, 0, 0, size.cx, size.cy, context, 0, 0, SRCCOPY);
  }
  EndPaint(handle_, &painted);
}

void Win32Window::resized() {
  fitpicture();
  placepages();
  uncovered();
}

void Win32Window::rescaled(const RECT& area) {
  place(handle_, onscreen(area));
  resized();  // the pages are told of it by the system
}

void Win32Window::activated() {
  SetFocus(focus_ != nullptr ? focus_ : handle_);
  placepages();
  uncovered();
}

void Win32Window::fitpicture() {
  const SIZE size = innersize(handle_);
  const double ratio = deviceratio(handle_);
  picture_.fit(static_cast<int>(std::ceil(size.cx / ratio)),
               static_cast<int>(std::ceil(size.cy / ratio)), ratio);
}

void Win32Window::placepages() {
  const SIZE size = innersize(handle_);
  for (HWND page : pages_) place(page, {0, 0, size.cx, size.cy});
}

}  // namespace duskmarch
