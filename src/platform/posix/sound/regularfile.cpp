#include "platform/sound/regularfile.h"

#include <cerrno>
#include <cstring>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/desktop.h"

namespace duskmarch {
namespace {

struct FileHandle {
  explicit FileHandle(const std::filesystem::path& file)
      : number(::open(file.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC)) {}
  FileHandle(const FileHandle&) = delete;
  FileHandle& operator=(const FileHandle&) = delete;
  ~FileHandle() {
    if (number >= 0) ::close(number);
  }
  int number;
};

std::size_t sizeofregularfile(const FileHandle& file) {
  struct stat status {};
  if (file.number < 0 || ::fstat(file.number, &status) != 0) {
    throw PlatformError(std::strerror(errno));
  }
  if (!S_ISREG(status.st_mode)) throw PlatformError("not a regular file");
  const auto size = static_cast<std::size_t>(status.st_size);
  if (size > largestsoundfile) throw PlatformError("the file is too large");
  return size;
}

}  // namespace

std::vector<std::byte> readregularfile(const std::filesystem::path& file) {
  const FileHandle handle(file);
  std::vector<std::byte> bytes(sizeofregularfile(handle));
  std::size_t done = 0;
  while (done < bytes.size()) {
    const ssize_t count = ::read(handle.number, &bytes[done], bytes.size() - done);
    if (count < 0) throw PlatformError(std::strerror(errno));
    if (count == 0) break;  // it was cut short meanwhile
    done += static_cast<std::size_t>(count);
  }
  bytes.resize(done);
  return bytes;
}

}  // namespace duskmarch
