#include "shell/speech/progress.h"

#include <charconv>
#include <cmath>
#include <optional>
#include <stdexcept>

#include "debuglog.h"
#include "platform/files.h"
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

// Written beside the file first, so that one is always whole.
void replace(const std::filesystem::path& file, std::string_view text) {
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

}  // namespace

bool saveprogress(const Game& game) {
  const std::filesystem::path file =
      findfile(game.programfolder, progressfile).value_or(game.programfolder / progressfile);
  try {
    replace(file, numberline(game.speechmode) + "\r\n" + numberline(game.sapirate) + "\r\n" +
                      game.progressspare + "\r\n");
    return true;
  } catch (const FileError&) {
    return false;
  }
}

void readprogress(Game& game) {
  const auto file = findfile(game.programfolder, progressfile);
  if (!file) return;
  std::vector<std::string> lines;
  try {
    lines = splitlines(readtextfile(*file));
  } catch (const std::exception& error) {
    logerror(game, "readprogress", std::string(progressfile) + ": " + error.what());
    return;
  }
  lines.resize(std::max<std::size_t>(lines.size(), 3));
  game.speechmode = setting(lines[0], 0, speechmode::count - 1).value_or(game.speechmode);
  if (const auto rate = setting(lines[1], speechrate::slowest, speechrate::fastest)) {
    game.sapirate = *rate;
    giverate(game);
  }
  game.progressspare = lines[2];
}

}  // namespace duskmarch
