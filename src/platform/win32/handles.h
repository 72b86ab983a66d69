// The system's handles, given back when they are not needed any more.
#pragma once

#include <memory>

#include <windows.h>

namespace duskmarch {

struct ObjectDeleter {
  using pointer = HGDIOBJ;
  void operator()(HGDIOBJ object) const { DeleteObject(object); }
};
// A font, a bitmap or a brush.
using GdiObject = std::unique_ptr<void, ObjectDeleter>;

struct MemoryDcDeleter {
  using pointer = HDC;
  void operator()(HDC context) const { DeleteDC(context); }
};
using MemoryDc = std::unique_ptr<HDC, MemoryDcDeleter>;

// The context of a window, while it lives.
class WindowDc {
 public:
  explicit WindowDc(HWND window) : window_(window), context_(GetDC(window)) {}
  WindowDc(const WindowDc&) = delete;
  WindowDc& operator=(const WindowDc&) = delete;
  ~WindowDc() { ReleaseDC(window_, context_); }

  HDC context() const { return context_; }

 private:
  HWND window_;
  HDC context_;
};

// Lets a context draw with `object` while it lives.
class Selected {
 public:
  Selected(HDC context, HGDIOBJ object)
      : context_(context), before_(SelectObject(context, object)) {}
  Selected(const Selected&) = delete;
  Selected& operator=(const Selected&) = delete;
  ~Selected() { SelectObject(context_, before_); }

 private:
  HDC context_;
  HGDIOBJ before_;
};

}  // namespace duskmarch
