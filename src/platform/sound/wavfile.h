// WAV files as clips for the mixer.
#pragma once

#include <filesystem>

#include "platform/sound/clip.h"

namespace duskmarch {

// Reads, checks and decodes a whole file; one stored at mixrate is not resampled. Throws
// PlatformError for a file that is damaged or no WAV.
Clip readwav(const std::filesystem::path& file);

}  // namespace duskmarch
