// What the tests ask of the system, and what they do to it. Tests that need more than it can do are
// named in the file leftout beside this.
#pragma once

#include <cstddef>
#include <filesystem>
#include <stdexcept>

#include <process.h>
#include <windows.h>
// After it.
#include <psapi.h>

namespace duskmarch {

inline int processid() {
  return _getpid();
}

inline std::size_t peakmemory() {
  PROCESS_MEMORY_COUNTERS usage{};
  GetProcessMemoryInfo(GetCurrentProcess(), &usage, sizeof usage);
  return usage.PeakWorkingSetSize / 1024;
}

inline std::filesystem::path scratchfolder() {
  return std::filesystem::temp_directory_path();
}

// Links to folders are for administrators alone.
inline void sharefolder(const std::filesystem::path& folder, const std::filesystem::path& place) {
  std::filesystem::create_directory(place);
  for (const auto& file : std::filesystem::directory_iterator(folder)) {
    const std::filesystem::path name = place / file.path().filename();
    std::error_code otherdisk;
    std::filesystem::create_hard_link(file.path(), name, otherdisk);
    if (otherdisk) std::filesystem::copy_file(file.path(), name);
  }
}

inline bool makepipe(const std::filesystem::path&) {
  return false;
}

class FullDisk {
 public:
  explicit FullDisk(std::size_t) { throw std::logic_error("no disk can be filled here"); }
};

}  // namespace duskmarch
