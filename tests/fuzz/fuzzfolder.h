// A program folder in memory for a fuzzer, with one file of any content in it.
#pragma once

#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

#include <unistd.h>

namespace duskmarch {

inline std::filesystem::path fuzzfolder(const char* file, const std::uint8_t* data,
                                        std::size_t size) {
  static const std::filesystem::path folder =
      std::filesystem::temp_directory_path() / ("duskmarch-fuzz-" + std::to_string(getpid()));
  if (std::filesystem::create_directories(folder)) {
    std::filesystem::create_directory_symlink(SOURCE_FOLDER "/sounds", folder / "sounds");
  }
  std::ofstream(folder / file, std::ios::binary)
      .write(reinterpret_cast<const char*>(data), static_cast<std::streamsize>(size));
  return folder;
}

}  // namespace duskmarch
