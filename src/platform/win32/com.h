// What every use of the system's objects needs: a thread that may use them, and one share of each.
#pragma once

#include <cstdio>
#include <string>
#include <utility>

#include <windows.h>

#include "platform/desktop.h"

namespace duskmarch {

// Throws PlatformError, with `what` and the system's number for it, where a call has failed.
inline void check(HRESULT result, const std::string& what) {
  if (SUCCEEDED(result)) return;
  char code[16];
  std::snprintf(code, sizeof code, "%08lX", static_cast<unsigned long>(result));
  throw PlatformError(what + " (" + code + ")");
}

// Lets the thread use objects while this lives; a thread with windows, as an apartment of its own.
class ComThread {
 public:
  explicit ComThread(DWORD kind = COINIT_MULTITHREADED)
      : entered_(SUCCEEDED(CoInitializeEx(nullptr, kind))) {}
  ComThread(const ComThread&) = delete;
  ComThread& operator=(const ComThread&) = delete;
  ~ComThread() {
    if (entered_) CoUninitialize();
  }

 private:
  bool entered_;
};

// One share of an object, or none.
template <class Object>
class ComPtr {
 public:
  ComPtr() = default;
  ComPtr(ComPtr&& other) noexcept : object_(std::exchange(other.object_, nullptr)) {}
  ComPtr& operator=(ComPtr&& other) noexcept {
    std::swap(object_, other.object_);
    return *this;
  }
  ~ComPtr() { reset(); }

  void reset() {
    if (object_ != nullptr) std::exchange(object_, nullptr)->Release();
  }
  Object* operator->() const { return object_; }
  Object* get() const { return object_; }
  explicit operator bool() const { return object_ != nullptr; }
  // For a call that hands over a share.
  Object** put() {
    reset();
    return &object_;
  }
  void** putvoid() { return reinterpret_cast<void**>(put()); }

 private:
  Object* object_ = nullptr;
};

}  // namespace duskmarch
