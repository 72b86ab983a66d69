#include "shell/speech/settingsfile.h"

#include <algorithm>
#include <charconv>
#include <chrono>
#include <cmath>
#include <utility>

#include "debuglog.h"
#include "ownfiles.h"
#include "platform/files.h"
#include "shell/speech/speech.h"
#include "values/textfile.h"

namespace duskmarch {

namespace {

using Clock = std::chrono::steady_clock;

// How long another program may keep a file open before the player is told.
constexpr std::chrono::milliseconds patience{500};

// Written beside the file first, so that one is always whole.
void replace(const std::filesystem::path& file, std::string_view text) {
  std::filesystem::path fresh = file;
  fresh += ".new";
  FileWriter writer(fresh, FileWriter::Start::anew);
  try {
    writer.write(text);
    writer.close();
    renamefile(fresh, file, Patience::none);
  } catch (const FileError&) {
    std::error_code ignored;
    std::filesystem::remove(fresh, ignored);
    throw;
  }
}

enum class Outcome { written, busy, failed };

Outcome attempt(const Game& game, const BusySettings& settings) {
  try {
    replace(ownfiletowrite(game, settings.name), settings.text);
    return Outcome::written;
  } catch (const FileBusy&) {
    return Outcome::busy;
  } catch (const FileError&) {
    return Outcome::failed;
  }
}

// With the last text once more, which may be cut off by it; or with the next, where the player is
// somewhere that this would lead away from.
void telllate(Game& game) {
  const bool between = game.keyhandlerbusy || game.focus != Focus::window || game.reviewpos != 0;
  if (!between && !game.ended) sayit(game, std::string(game.saidlines[1]));
}

}  // namespace

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

void writesettings(Game& game, std::string_view name, std::string_view text,
                   void (*failed)(Game& game)) {
  const auto waiting = std::ranges::find(game.busysettings, name, &BusySettings::name);
  if (waiting != game.busysettings.end()) {
    waiting->text = text;
    return;
  }
  BusySettings settings{std::string(name), std::string(text), failed, Clock::now() + patience};
  const Outcome outcome = attempt(game, settings);
  if (outcome == Outcome::failed) failed(game);
  if (outcome == Outcome::busy) game.busysettings.push_back(std::move(settings));
}

bool trysettingsagain(Game& game) {
  bool lost = false;
  std::erase_if(game.busysettings, [&](const BusySettings& settings) {
    const Outcome outcome = attempt(game, settings);
    if (outcome == Outcome::busy && Clock::now() < settings.until) return false;
    if (outcome != Outcome::written) settings.failed(game);
    lost = lost || outcome != Outcome::written;
    return true;
  });
  if (lost) telllate(game);
  return !game.busysettings.empty();
}

}  // namespace duskmarch
