// Sound files, each decoded once for as long as it stays what it is.
#pragma once

#include <filesystem>
#include <map>
#include <memory>
#include <string>

#include "platform/files.h"
#include "platform/sound/clip.h"

namespace duskmarch {

class ClipCache {
 public:
  // The sound in `file`, which is looked at each time, and read again when its size or time has
  // changed. Throws PlatformError for a file that is damaged or no WAV.
  std::shared_ptr<const Clip> clip(const std::filesystem::path& file);

 private:
  struct Decoded {
    FileStamp stamp;
    std::shared_ptr<const Clip> clip;  // null for a bad file
    std::string error;
  };
  static Decoded decode(const std::filesystem::path& file, const FileStamp& stamp);

  std::map<std::filesystem::path, Decoded> decoded_;
};

}  // namespace duskmarch
