// Sound files as bytes in memory.
#pragma once

#include <cstddef>
#include <filesystem>
#include <vector>

namespace duskmarch {

inline constexpr std::size_t largestsoundfile = 256U << 20;

// All of a regular file. Throws PlatformError for anything else, a pipe among it, without waiting,
// and for a file larger than that.
std::vector<std::byte> readregularfile(const std::filesystem::path& file);

}  // namespace duskmarch
