#include "platform/win32/inputbox.h"

#include <gtest/gtest.h>

#include "platform/win32/fonts.h"

namespace duskmarch {

namespace {

struct Seen {
  RECT inner = {};
  RECT label = {};
  LONG needed = 0;
};

// What the label of the box would take at its width, and where it lies in the box.
Seen look(HWND box) {
  Seen seen;
  HWND label = GetWindow(box, GW_CHILD);
  GetClientRect(box, &seen.inner);
  GetWindowRect(label, &seen.label);
  MapWindowPoints(nullptr, box, reinterpret_cast<POINT*>(&seen.label), 2);
  wchar_t words[20000] = L"";
  GetWindowTextW(label, words, 20000);
  const WindowDc screen(label);
  const Selected font(screen.context(),
                      reinterpret_cast<HGDIOBJ>(SendMessageW(label, WM_GETFONT, 0, 0)));
  RECT area = {0, 0, seen.label.right - seen.label.left, 0};
  seen.needed = DrawTextW(screen.context(), words, -1, &area,
                          DT_CALCRECT | DT_WORDBREAK | DT_EDITCONTROL | DT_NOPREFIX);
  return seen;
}

// As the box opens, from within its own loop.
Seen opened(const std::string& prompt) {
  static Seen seen;
  seen = {};
  SetTimer(nullptr, 0, USER_TIMER_MINIMUM, [](HWND, UINT, UINT_PTR timer, DWORD) {
    HWND box = FindWindowW(L"#32770", L"Choose");
    if (box == nullptr || IsWindowVisible(box) == 0) return;
    KillTimer(nullptr, timer);
    seen = look(box);
    PostMessageW(box, WM_COMMAND, IDCANCEL, 0);
  });
  InputBox box(L"Choose", prompt, [](std::string_view) {});
  EXPECT_EQ(box.run(nullptr), "");
  return seen;
}

TEST(InputBox, APromptOfAnyLengthIsSeenWhole) {
  for (const int sentences : {1, 5, 40, 200}) {
    std::string prompt;
    for (int n = 0; n < sentences; ++n) prompt += "Enter N, S & W to choose where to throw it.  ";
    const Seen seen = opened(prompt);
    ASSERT_GT(seen.needed, 0);
    EXPECT_GE(seen.label.bottom - seen.label.top, seen.needed) << sentences;
    EXPECT_LE(seen.label.bottom, seen.inner.bottom) << sentences;
    EXPECT_LE(seen.label.right, seen.inner.right) << sentences;
    EXPECT_LE(seen.inner.bottom, GetSystemMetrics(SM_CYSCREEN)) << sentences;
  }
}

}  // namespace

}  // namespace duskmarch
