#include "shell/speech/settingsfile.h"

#include <algorithm>
#include <charconv>
#include <cmath>

#include "debuglog.h"
#include "ownfiles.h"
#include "platform/files.h"
#include "values/textfile.h"

namespace duskmarch {

std::optional<int> setting(std::string_view line, int least, int most) {
  const std::string_view digits = trim(line);
  double value = 0;
  const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value);
  if (error != std::errc() || end != digits.data() + digits.size()) return std::nullopt;
  value = std::floor(value);
  if (!(value >= least && value <= most)) return std::nullopt;
  return static_cast<int>(value);
}

std::optional<std::vector<std::string>> readsettings(const Game& game, std::string_view name,
                                                     std::size_t count, std::string_view what) {
  const auto file = ownfile(game, name);
  if (!file) return std::nullopt;
  try {
    std::vector<std::string> lines = splitlines(readtextfile(*file));
    lines.resize(std::max(lines.size(), count));
    return lines;
  } catch (const std::exception& error) {
    logerror(game, what, std::string(name) + ": " + error.what());
    return std::nullopt;
  }
}

// Written beside the file first, so that one is always whole.
void writesettings(const std::filesystem::path& file, std::string_view text) {
  std::filesystem::path fresh = file;
  fresh += ".new";
  FileWriter writer(fresh, FileWriter::Start::anew);
  try {
    writer.write(text);
    writer.close();
    renamefile(fresh, file);
  } catch (const FileError&) {
    std::error_code ignored;
    std::filesystem::remove(fresh, ignored);
    throw;
  }
}

}  // namespace duskmarch
