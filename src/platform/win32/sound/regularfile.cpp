#include "platform/sound/regularfile.h"

#include <fstream>

#include "platform/desktop.h"

namespace duskmarch {

std::vector<std::byte> readregularfile(const std::filesystem::path& file) {
  // No name of a regular file means a pipe or a device here, so looking first is enough.
  std::error_code error;
  if (!std::filesystem::is_regular_file(file, error)) throw PlatformError("not a regular file");
  const auto size = std::filesystem::file_size(file, error);
  if (error) throw PlatformError(error.message());
  if (size > largestsoundfile) throw PlatformError("the file is too large");
  std::vector<std::byte> bytes(static_cast<std::size_t>(size));
  std::ifstream stream(file, std::ios::binary);
  stream.read(reinterpret_cast<char*>(bytes.data()), static_cast<std::streamsize>(size));
  if (!stream.is_open() || stream.bad()) throw PlatformError("it cannot be read");
  bytes.resize(static_cast<std::size_t>(stream.gcount()));
  return bytes;
}

}  // namespace duskmarch
