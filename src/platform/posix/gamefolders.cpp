#include "platform/gamefolders.h"

#include <cerrno>
#include <cstdlib>
#include <system_error>
#include <utility>

#include <fcntl.h>
#include <pwd.h>
#include <sys/file.h>
#include <unistd.h>

namespace duskmarch {

namespace {

namespace fs = std::filesystem;

bool canwrite(const fs::path& folder) {
  return ::faccessat(AT_FDCWD, folder.c_str(), W_OK | X_OK, AT_EACCESS) == 0;
}

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

// Nothing for a player who has no home.
fs::path datafolder() {
  fs::path data = folderof("XDG_DATA_HOME");
  if (data.empty()) data = home() / ".local/share";
  return data.is_absolute() ? data / "duskmarch" : fs::path();
}

// With all folders that lead to it; what others may see in those that are new is left to the
// system.
bool made(const fs::path& folder) {
  std::error_code error;
  fs::create_directories(folder, error);
  return !error && canwrite(folder);
}

}  // namespace

GameFolders::GameFolders(fs::path program) : program_(std::move(program)), files_(program_) {
  if (!canwrite(files_)) {
    if (fs::path own = datafolder(); made(own)) files_ = std::move(own);
  }
  if (canwrite(files_)) lock();
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
