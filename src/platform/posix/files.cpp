#include "platform/files.h"

#include <cerrno>
#include <cstring>
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/posix/openfile.h"
#include "values/textfile.h"

namespace duskmarch {

namespace {

constexpr std::intptr_t closed = -1;

int descriptor(std::intptr_t handle) {
  return static_cast<int>(handle);
}

[[noreturn]] void fail(const char* what) {
  throw FileError(std::string(what) + ": " + std::strerror(errno));
}

// Owns a descriptor that is read from: nothing is lost when closing it fails.
struct Reader {
  explicit Reader(const std::filesystem::path& file)
      // Without waiting for the other end of a pipe, and taking no terminal.
      : number(::open(file.c_str(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC)) {
    if (number < 0) fail("it cannot be opened");
  }
  Reader(const Reader&) = delete;
  Reader& operator=(const Reader&) = delete;
  ~Reader() { ::close(number); }
  int number;
};

struct stat statusof(int file) {
  struct stat status {};
  if (::fstat(file, &status) != 0) fail("it cannot be looked at");
  if (!S_ISREG(status.st_mode)) throw FileError("it is no regular file");
  return status;
}

// So that a new name is on the disk too; not every file system can do that.
void synchronizefolder(const std::filesystem::path& folder) {
  const char* name = folder.empty() ? "." : folder.c_str();
  const int opened = ::open(name, O_RDONLY | O_DIRECTORY | O_NONBLOCK | O_CLOEXEC);
  if (opened < 0) return;
  ::fsync(opened);
  ::close(opened);
}

}  // namespace

int openforwriting(int folder, const char* name, int moreflags) noexcept {
  const int flags = O_WRONLY | O_CREAT | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY | O_CLOEXEC | moreflags;
  const int file = ::openat(folder, name, flags, 0666);
  if (file < 0) return -1;
  struct stat status {};
  if (::fstat(file, &status) == 0 && S_ISREG(status.st_mode)) return file;
  ::close(file);
  errno = EINVAL;
  return -1;
}

std::string readtextfile(const std::filesystem::path& file) {
  const Reader reader(file);
  const auto size = static_cast<std::size_t>(statusof(reader.number).st_size);
  if (size > largesttextfile) throw FileError("it is larger than a file of the game");
  std::string text(size, '\0');
  std::size_t done = 0;
  while (done < size) {
    const ssize_t count = ::read(reader.number, text.data() + done, size - done);
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) fail("it cannot be read");
    if (count == 0) break;  // it was cut short meanwhile
    done += static_cast<std::size_t>(count);
  }
  text.resize(done);
  return text;
}

FileWriter::FileWriter(const std::filesystem::path& file, Start start)
    : file_(file),
      handle_(openforwriting(AT_FDCWD, file.c_str(), start == Start::atend ? O_APPEND : 0)) {
  if (handle_ == closed) fail("it cannot be opened for writing");
  const int opened = descriptor(handle_);
  try {
    if (start == Start::anew && ::ftruncate(opened, 0) != 0) fail("it cannot be emptied");
    size_ = static_cast<std::size_t>(statusof(opened).st_size);
  } catch (...) {
    ::close(opened);
    throw;
  }
}

FileWriter::~FileWriter() {
  if (handle_ != closed) ::close(descriptor(handle_));
}

void FileWriter::write(std::string_view text) {
  while (!text.empty()) {
    const ssize_t count = ::write(descriptor(handle_), text.data(), text.size());
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) fail("it cannot be written");
    size_ += static_cast<std::size_t>(count);
    text.remove_prefix(static_cast<std::size_t>(count));
  }
}

void FileWriter::synchronize() {
  if (::fsync(descriptor(handle_)) != 0) fail("it cannot be kept on the disk");
  synchronizefolder(file_.parent_path());
}

void FileWriter::close() {
  if (::close(descriptor(std::exchange(handle_, closed))) != 0) fail("it cannot be closed");
}

void renamefile(const std::filesystem::path& from, const std::filesystem::path& to) {
  if (::rename(from.c_str(), to.c_str()) != 0) fail("it cannot be renamed");
}

std::optional<FileStamp> stampof(const std::filesystem::path& file) {
  struct stat status {};
  if (::stat(file.c_str(), &status) != 0 || !S_ISREG(status.st_mode)) return std::nullopt;
  constexpr std::int64_t nanoseconds = 1'000'000'000;
  return FileStamp{static_cast<std::uintmax_t>(status.st_size),
                   status.st_mtim.tv_sec * nanoseconds + status.st_mtim.tv_nsec};
}

}  // namespace duskmarch
