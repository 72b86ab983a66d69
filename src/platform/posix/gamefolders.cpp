#include "platform/gamefolders.h"

#include <cerrno>
#include <cstdlib>

#include <fcntl.h>
#include <pwd.h>
#include <sys/file.h>
#include <unistd.h>

namespace duskmarch {

namespace {

namespace fs = std::filesystem;

// What a variable names, where it holds a whole path.
fs::path folderof(const char* variable) {
  const char* const value = std::getenv(variable);
  const fs::path folder = value == nullptr ? fs::path() : fs::path(value);
  return folder.is_absolute() ? folder : fs::path();
}

fs::path home() {
  if (fs::path folder = folderof("HOME"); !folder.empty()) return folder;
  const passwd* const player = ::getpwuid(::geteuid());
  return player == nullptr ? fs::path() : fs::path(player->pw_dir);
}

}  // namespace

bool GameFolders::canwrite(const fs::path& folder) {
  return ::faccessat(AT_FDCWD, folder.c_str(), W_OK | X_OK, AT_EACCESS) == 0;
}

fs::path GameFolders::datafolder() {
  fs::path data = folderof("XDG_DATA_HOME");
  if (data.empty()) data = home() / ".local/share";
  return data.is_absolute() ? data / "duskmarch" : fs::path();
}

// The folder itself is locked: so no file is left behind, and the lock ends with the process.
void GameFolders::lock() {
  const int folder = ::open(files_.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (folder < 0) return;
  lock_ = folder;
  inuse_ = ::flock(folder, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK;
}

GameFolders::~GameFolders() {
  if (lock_ >= 0) ::close(static_cast<int>(lock_));
}

}  // namespace duskmarch
