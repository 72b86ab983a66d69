#include "values/filelookup.h"

#include <algorithm>
#include <system_error>

#include "values/pathtext.h"

namespace duskmarch {

namespace {

namespace fs = std::filesystem;

bool sameletters(std::string_view one, std::string_view other) {
  const auto lower = [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; };
  return std::ranges::equal(one, other, {}, lower, lower);
}

bool present(const fs::path& file) {
  std::error_code ignored;
  return fs::exists(file, ignored);
}

bool isfile(const fs::path& file) {
  std::error_code ignored;
  return fs::is_regular_file(file, ignored);
}

std::optional<fs::path> findpart(const fs::path& folder, std::string_view part) {
  if (fs::path exact = folder / pathof(part); present(exact)) return exact;
  std::error_code error;
  for (fs::directory_iterator entry(folder, error), end; !error && entry != end;
       entry.increment(error)) {
    if (sameletters(textof(entry->path().filename()), part)) return entry->path();
  }
  return std::nullopt;
}

}  // namespace

std::optional<fs::path> findfile(const fs::path& folder, std::string_view name) {
  const std::string tidy = tidyname(name);
  if (fs::path exact = folder / pathof(tidy); present(exact)) return exact;
  std::optional<fs::path> found = folder;
  for (std::size_t start = 0; found && start < tidy.size();) {
    const std::size_t end = std::min(tidy.find('/', start), tidy.size());
    found = findpart(*found, std::string_view(tidy).substr(start, end - start));
    start = end + 1;
  }
  return found;
}

const fs::path* FileFinder::find(const fs::path& folder, std::string_view name) {
  auto known = found_.find(name);
  if (known != found_.end() && isfile(known->second)) return &known->second;
  std::optional<fs::path> found = findfile(folder, name);
  if (!found || !isfile(*found)) return nullptr;
  known = found_.insert_or_assign(std::string(name), *std::move(found)).first;
  return &known->second;
}

std::string tidyname(std::string_view name) {
  const std::size_t start = std::min(name.find_first_not_of("/\\"), name.size());
  std::string tidy(name.substr(start));
  std::ranges::replace(tidy, '\\', '/');
  return tidy;
}

}  // namespace duskmarch
