#include "platform/win32/openfile.h"

namespace duskmarch {

namespace {

constexpr DWORD shared = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
constexpr DWORD towrite = GENERIC_WRITE | FILE_READ_ATTRIBUTES;

// What the file is besides a file: 0, or the kind of thing that the system finds its content by.
DWORD kindof(HANDLE file) {
  FILE_ATTRIBUTE_TAG_INFO tag{};
  if (GetFileInformationByHandleEx(file, FileAttributeTagInfo, &tag, sizeof tag) == 0) return 0;
  return (tag.FileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0 ? tag.ReparseTag : 0;
}

}  // namespace

OpenFile::OpenFile(const wchar_t* file, DWORD access, DWORD creation, DWORD flags)
    : handle_(CreateFileW(file, access, shared, nullptr, creation, FILE_ATTRIBUTE_NORMAL | flags,
                          nullptr)) {}

OpenFile::~OpenFile() {
  if (isopen()) CloseHandle(handle_);
}

bool isregular(HANDLE file) {
  BY_HANDLE_FILE_INFORMATION status;
  return GetFileType(file) == FILE_TYPE_DISK && GetFileInformationByHandle(file, &status) != 0 &&
         (status.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) == 0;
}

// Looked at as it stands first, so that no link is followed. What a service keeps elsewhere, as
// OneDrive does, is a file like any other, which has to be opened in the ordinary way.
OpenFile openforwriting(const wchar_t* file) {
  OpenFile opened(file, towrite, OPEN_ALWAYS, FILE_FLAG_OPEN_REPARSE_POINT);
  if (!opened.isopen()) return opened;
  const DWORD kind = kindof(opened.get());
  if (kind == IO_REPARSE_TAG_SYMLINK || kind == IO_REPARSE_TAG_MOUNT_POINT ||
      !isregular(opened.get())) {
    CloseHandle(opened.release());
    SetLastError(notregular);
    return opened;
  }
  return kind == 0 ? std::move(opened) : OpenFile(file, towrite, OPEN_EXISTING);
}

}  // namespace duskmarch
