#include "platform/gamefolders.h"

#include <string>

#include <shlobj.h>
#include <windows.h>

namespace duskmarch {

namespace {

namespace fs = std::filesystem;

HANDLE systemhandle(std::intptr_t handle) {
  return reinterpret_cast<HANDLE>(handle);
}

}  // namespace

// Rights alone do not tell: by trying. The file is gone again when it is closed.
bool GameFolders::canwrite(const fs::path& folder) {
  const fs::path trial =
      folder / (L"duskmarch." + std::to_wstring(GetCurrentProcessId()) + L".new");
  const HANDLE file = CreateFileW(trial.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW,
                                  FILE_ATTRIBUTE_TEMPORARY | FILE_FLAG_DELETE_ON_CLOSE, nullptr);
  if (file == INVALID_HANDLE_VALUE) return false;
  CloseHandle(file);
  return true;
}

fs::path GameFolders::datafolder() {
  PWSTR local = nullptr;
  fs::path folder;
  if (SHGetKnownFolderPath(FOLDERID_LocalAppData, 0, nullptr, &local) == S_OK) {
    folder = fs::path(local) / L"Duskmarch";
  }
  CoTaskMemFree(local);
  return folder;
}

// A file that no other program may open; the system takes it away with the process.
void GameFolders::lock() {
  const HANDLE file =
      CreateFileW((files_ / L"duskmarch.lock").c_str(), GENERIC_WRITE, 0, nullptr, OPEN_ALWAYS,
                  FILE_ATTRIBUTE_HIDDEN | FILE_FLAG_DELETE_ON_CLOSE, nullptr);
  inuse_ = file == INVALID_HANDLE_VALUE && GetLastError() == ERROR_SHARING_VIOLATION;
  lock_ = reinterpret_cast<std::intptr_t>(file);
}

GameFolders::~GameFolders() {
  if (systemhandle(lock_) != INVALID_HANDLE_VALUE) CloseHandle(systemhandle(lock_));
}

}  // namespace duskmarch
