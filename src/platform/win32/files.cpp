#include "platform/files.h"

#include <array>
#include <utility>

#include <windows.h>

#include "platform/win32/openfile.h"
#include "platform/win32/text.h"
#include "values/textfile.h"

namespace duskmarch {

namespace {

std::string describe(DWORD error) {
  std::array<wchar_t, 512> words{};
  DWORD size = FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr,
                              error, 0, words.data(), static_cast<DWORD>(words.size()), nullptr);
  while (size > 0 && words[size - 1] <= L' ') --size;
  return utf8({words.data(), size});
}

bool isbusy(DWORD error) {
  return error == ERROR_SHARING_VIOLATION || error == ERROR_LOCK_VIOLATION;
}

[[noreturn]] void fail(const char* what, DWORD error = GetLastError()) {
  if (isbusy(error)) throw FileBusy(std::string(what) + ": " + describe(error));
  throw FileError(std::string(what) + ": " + describe(error));
}

HANDLE systemhandle(std::intptr_t handle) {
  return reinterpret_cast<HANDLE>(handle);
}

std::size_t sizeofopen(HANDLE file) {
  LARGE_INTEGER size;
  if (GetFileSizeEx(file, &size) == 0) fail("it cannot be looked at");
  return static_cast<std::size_t>(size.QuadPart);
}

// Whether a rename that failed may succeed a moment later: another program has the file open.
bool mayyetsucceed(DWORD error, const std::filesystem::path& to) {
  if (isbusy(error)) return true;
  const DWORD attributes = GetFileAttributesW(to.c_str());
  return error == ERROR_ACCESS_DENIED && attributes != INVALID_FILE_ATTRIBUTES &&
         (attributes & (FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_READONLY)) == 0;
}

}  // namespace

std::string readtextfile(const std::filesystem::path& file) {
  const OpenFile opened(file.c_str(), GENERIC_READ, OPEN_EXISTING);
  if (!opened.isopen()) fail("it cannot be opened");
  if (!isregular(opened.get())) throw FileError("it is no regular file");
  const std::size_t size = sizeofopen(opened.get());
  if (size > largesttextfile) throw FileError("it is larger than a file of the game");
  std::string text(size, '\0');
  DWORD done = 0;
  if (ReadFile(opened.get(), text.data(), static_cast<DWORD>(size), &done, nullptr) == 0) {
    fail("it cannot be read");
  }
  text.resize(done);  // it may have been cut short meanwhile
  return text;
}

FileWriter::FileWriter(const std::filesystem::path& file, Start start) : file_(file) {
  OpenFile opened = openforwriting(file.c_str());
  if (!opened.isopen() && GetLastError() == notregular) throw FileError("it is no regular file");
  if (!opened.isopen()) fail("it cannot be opened for writing");
  if (start == Start::anew && SetEndOfFile(opened.get()) == 0) fail("it cannot be emptied");
  size_ = sizeofopen(opened.get());
  if (SetFilePointerEx(opened.get(), {}, nullptr, FILE_END) == 0) fail("it cannot be written");
  handle_ = reinterpret_cast<std::intptr_t>(opened.release());
}

FileWriter::~FileWriter() {
  if (systemhandle(handle_) != INVALID_HANDLE_VALUE) CloseHandle(systemhandle(handle_));
}

void FileWriter::write(std::string_view text) {
  while (!text.empty()) {
    DWORD count = 0;
    if (WriteFile(systemhandle(handle_), text.data(), static_cast<DWORD>(text.size()), &count,
                  nullptr) == 0) {
      fail("it cannot be written");
    }
    size_ += count;
    text.remove_prefix(count);
  }
}

void FileWriter::synchronize() {
  if (FlushFileBuffers(systemhandle(handle_)) == 0) fail("it cannot be kept on the disk");
}

void FileWriter::close() {
  const auto closed = reinterpret_cast<std::intptr_t>(INVALID_HANDLE_VALUE);
  if (CloseHandle(systemhandle(std::exchange(handle_, closed))) == 0) fail("it cannot be closed");
}

void renamefile(const std::filesystem::path& from, const std::filesystem::path& to) {
  constexpr DWORD how = MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH;
  if (MoveFileExW(from.c_str(), to.c_str(), how) != 0) return;
  const DWORD error = GetLastError();
  if (mayyetsucceed(error, to)) throw FileBusy(describe(error));
  fail("it cannot be renamed", error);
}

std::optional<FileStamp> stampof(const std::filesystem::path& file) {
  const OpenFile opened(file.c_str(), FILE_READ_ATTRIBUTES, OPEN_EXISTING);
  BY_HANDLE_FILE_INFORMATION status;
  if (!opened.isopen() || !isregular(opened.get()) ||
      GetFileInformationByHandle(opened.get(), &status) == 0) {
    return std::nullopt;
  }
  const auto joined = [](DWORD high, DWORD low) { return (std::uint64_t{high} << 32U) | low; };
  return FileStamp{joined(status.nFileSizeHigh, status.nFileSizeLow),
                   static_cast<std::int64_t>(joined(status.ftLastWriteTime.dwHighDateTime,
                                                    status.ftLastWriteTime.dwLowDateTime))};
}

}  // namespace duskmarch
