#include "shell/speech/progress.h"

#include <charconv>
#include <cmath>
#include <fstream>
#include <optional>
#include <stdexcept>

#include "debuglog.h"
#include "shell/speech/speech.h"
#include "values/filelookup.h"
#include "values/textfile.h"

namespace duskmarch {

namespace {

constexpr std::string_view progressfile = "progress.ini";

// The number in a line, rounded down, if it is one from `least` to `most`.
std::optional<int> setting(std::string_view line, int least, int most) {
  const std::string_view digits = trim(line);
  double value = 0;
  const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value);
  if (error != std::errc() || end != digits.data() + digits.size()) return std::nullopt;
  value = std::floor(value);
  if (!(value >= least && value <= most)) return std::nullopt;
  return static_cast<int>(value);
}

bool write(const Game& game, const std::filesystem::path& path) {
  std::ofstream file(path, std::ios::binary | std::ios::trunc);
  file << numberline(game.speechmode) << "\r\n"
       << numberline(game.sapirate) << "\r\n"
       << game.progressspare << "\r\n";
  file.close();
  return !file.fail();
}

}  // namespace

bool saveprogress(const Game& game) {
  const std::filesystem::path file =
      findfile(game.programfolder, progressfile).value_or(game.programfolder / progressfile);
  std::filesystem::path fresh = file;
  fresh += ".new";
  std::error_code error;
  if (write(game, fresh)) {
    std::filesystem::rename(fresh, file, error);
    if (!error) return true;
  }
  std::filesystem::remove(fresh, error);
  return false;
}

void readprogress(Game& game) {
  const auto file = findfile(game.programfolder, progressfile);
  if (!file) return;
  std::vector<std::string> lines;
  try {
    lines = readlines(*file);
  } catch (const std::exception& error) {
    logerror(game, "readprogress", std::string(progressfile) + ": " + error.what());
    return;
  }
  lines.resize(std::max<std::size_t>(lines.size(), 3));
  game.speechmode = setting(lines[0], 0, 3).value_or(game.speechmode);
  if (const auto rate = setting(lines[1], 1, 10)) {
    game.sapirate = *rate;
    giverate(game);
  }
  game.progressspare = lines[2];
}

}  // namespace duskmarch
