#include "platform/sound/clipcache.h"

#include "platform/desktop.h"
#include "platform/sound/wavfile.h"

namespace duskmarch {

std::shared_ptr<const Clip> ClipCache::clip(const std::filesystem::path& file) {
  const std::optional<FileStamp> stamp = stampof(file);
  if (!stamp) throw PlatformError("there is no such file");
  auto known = decoded_.find(file);
  if (known == decoded_.end() || known->second.stamp != *stamp) {
    known = decoded_.insert_or_assign(file, decode(file, *stamp)).first;
  }
  if (!known->second.clip) throw PlatformError(known->second.error);
  return known->second.clip;
}

ClipCache::Decoded ClipCache::decode(const std::filesystem::path& file, const FileStamp& stamp) {
  try {
    return {.stamp = stamp, .clip = std::make_shared<const Clip>(readwav(file)), .error = {}};
  } catch (const PlatformError& error) {
    return {.stamp = stamp, .clip = nullptr, .error = error.what()};
  }
}

}  // namespace duskmarch
