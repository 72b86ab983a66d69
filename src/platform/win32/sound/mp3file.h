// Whether a file is an MP3: the system's own player takes anything.
#pragma once

#include <filesystem>

namespace duskmarch {

// Reads no more than the beginning. Throws PlatformError when no music of that kind begins there.
void checkmp3(const std::filesystem::path& file);

}  // namespace duskmarch
