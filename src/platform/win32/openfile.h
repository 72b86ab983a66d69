// Files of the system, opened as the game wants them.
#pragma once

#include <utility>

#include <windows.h>

namespace duskmarch {

// A file of the system's, until it is released.
class OpenFile {
 public:
  // With no other program shut out.
  OpenFile(const wchar_t* file, DWORD access, DWORD creation, DWORD flags = 0);
  OpenFile(OpenFile&& other) noexcept : handle_(other.release()) {}
  OpenFile& operator=(OpenFile&& other) noexcept {
    std::swap(handle_, other.handle_);
    return *this;
  }
  ~OpenFile();

  bool isopen() const { return handle_ != INVALID_HANDLE_VALUE; }
  HANDLE get() const { return handle_; }
  HANDLE release() { return std::exchange(handle_, INVALID_HANDLE_VALUE); }

 private:
  HANDLE handle_;
};

bool isregular(HANDLE file);

// The last error where it is no regular file that openforwriting() came to.
inline constexpr DWORD notregular = ERROR_BAD_FILE_TYPE;

// Creates the file where there is none, follows no link, and opens regular files alone. Not open
// where that fails, which the last error then tells of. Allocates nothing.
OpenFile openforwriting(const wchar_t* file);

}  // namespace duskmarch
