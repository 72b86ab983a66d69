// What the tests ask of the system, and what they do to it.
#pragma once

#include <csignal>
#include <filesystem>

#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

namespace duskmarch {

inline int processid() {
  return getpid();
}

// The most memory that the process has used so far, in KiB.
inline std::size_t peakmemory() {
  rusage usage{};
  getrusage(RUSAGE_SELF, &usage);
  return static_cast<std::size_t>(usage.ru_maxrss);
}

// A soak opens a million small files; where there is a disk in memory they cost next to nothing.
inline std::filesystem::path scratchfolder() {
  const std::filesystem::path memory = "/dev/shm";
  return access(memory.c_str(), W_OK) == 0 ? memory : std::filesystem::temp_directory_path();
}

// Shows a folder of files, which nobody writes to, in another place too.
inline void sharefolder(const std::filesystem::path& folder, const std::filesystem::path& place) {
  std::filesystem::create_directory_symlink(folder, place);
}

// A named pipe, whose reader would wait for a writer. Whether it could be made.
inline bool makepipe(const std::filesystem::path& path) {
  return mkfifo(path.c_str(), 0600) == 0;
}

// A disk on which files get no longer than so many bytes, while the object lives.
class FullDisk {
 public:
  explicit FullDisk(rlim_t bytes) {
    std::signal(SIGXFSZ, SIG_IGN);
    getrlimit(RLIMIT_FSIZE, &before_);
    const rlimit full = {bytes, before_.rlim_max};
    setrlimit(RLIMIT_FSIZE, &full);
  }
  ~FullDisk() { setrlimit(RLIMIT_FSIZE, &before_); }
  FullDisk(const FullDisk&) = delete;
  FullDisk& operator=(const FullDisk&) = delete;

 private:
  rlimit before_{};
};

}  // namespace duskmarch
