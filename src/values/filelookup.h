// Files under the program folder, found whatever the letter case and the separators of their name.
#pragma once

#include <filesystem>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace duskmarch {

// The existing file or folder that `name` means under `folder`: "\sounds\Menu\SAPI.wav" finds
// "sounds/menu/SAPI.wav". A name that matches exactly wins.
std::optional<std::filesystem::path> findfile(const std::filesystem::path& folder,
                                              std::string_view name);
// findfile() for files whose names are asked for again and again: remembers where each was found,
// and looks anew for what is no longer there.
class FileFinder {
 public:
  // Null when there is no such file, or when it is a folder or anything else that is no file; else
  // good until the next call.
  const std::filesystem::path* find(const std::filesystem::path& folder, std::string_view name);

 private:
  std::map<std::string, std::filesystem::path, std::less<>> found_;
};

// `name` without leading separators and with "/" between its parts, letters as they are.
std::string tidyname(std::string_view name);

}  // namespace duskmarch
