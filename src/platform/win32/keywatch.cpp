#include "platform/win32/keywatch.h"

#include <utility>

namespace duskmarch {

namespace {

// The system hands a hook nothing of ours.
std::function<bool(const MSG&)> watcher;

bool iskey(UINT message) {
  return message == WM_KEYDOWN || message == WM_SYSKEYDOWN || message == WM_KEYUP ||
         message == WM_SYSKEYUP;
}

LRESULT CALLBACK taken(int code, WPARAM removed, LPARAM details) {
  auto* const message = reinterpret_cast<MSG*>(details);
  if (code == HC_ACTION && removed == PM_REMOVE && iskey(message->message) && watcher(*message)) {
    message->message = WM_NULL;
  }
  return CallNextHookEx(nullptr, code, removed, details);
}

}  // namespace

KeyWatch::KeyWatch(std::function<bool(const MSG&)> seen) {
  watcher = std::move(seen);
  hook_ = SetWindowsHookExW(WH_GETMESSAGE, taken, nullptr, GetCurrentThreadId());
}

KeyWatch::~KeyWatch() {
  UnhookWindowsHookEx(hook_);
  watcher = nullptr;
}

}  // namespace duskmarch
