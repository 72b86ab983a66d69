#include "platform/gamefolders.h"

#include <system_error>
#include <utility>

namespace duskmarch {

namespace {

namespace fs = std::filesystem;

// With all folders that lead to it; what others may see in those that are new is left to the
// system.
bool made(const fs::path& folder) {
  std::error_code error;
  fs::create_directories(folder, error);
  return !error && GameFolders::canwrite(folder);
}

}  // namespace

GameFolders::GameFolders(fs::path program) : program_(std::move(program)), files_(program_) {
  bool writable = canwrite(files_);
  if (!writable) {
    if (fs::path own = datafolder(); made(own)) {
      files_ = std::move(own);
      writable = true;
    }
  }
  if (writable) lock();
}

}  // namespace duskmarch
