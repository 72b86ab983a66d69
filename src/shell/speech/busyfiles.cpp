#include "shell/speech/busyfiles.h"

#include <algorithm>
#include <chrono>
#include <exception>
#include <utility>

#include "ownfiles.h"
#include "platform/files.h"
#include "shell/speech/speech.h"

namespace duskmarch {

namespace {

using Clock = std::chrono::steady_clock;

// How long another program may keep a file open before the player is told.
constexpr std::chrono::milliseconds patience{500};

Keeping attempt(Game& game, const OwnFile& file) {
  try {
    file.kind->write(ownfiletowrite(game, file.name), file.text);
  } catch (const FileBusy&) {
    return Keeping::waiting;
  } catch (const std::exception&) {
    return Keeping::failed;
  }
  file.kind->written(game);
  return Keeping::done;
}

// The place of it, in a list that may be const; the list's end where it does not wait.
auto waitingfile(auto& busyfiles, std::string_view name) {
  return std::ranges::find_if(busyfiles,
                              [&](const BusyFile& busy) { return busy.file.name == name; });
}

// With the last text once more, which may be cut off by it; or with the next, where the player is
// somewhere that this would lead away from.
void telllate(Game& game) {
  const bool between = game.keyhandlerbusy || game.focus != Focus::window || game.reviewpos != 0;
  if (!between && !game.ended) sayit(game, std::string(game.saidlines[1]));
}

}  // namespace

Keeping keepfile(Game& game, OwnFile file) {
  const auto waiting = waitingfile(game.busyfiles, file.name);
  if (waiting != game.busyfiles.end()) {
    waiting->file = std::move(file);
    return Keeping::waiting;
  }
  const auto until = Clock::now() + patience;
  const Keeping keeping = attempt(game, file);
  if (keeping == Keeping::waiting) game.busyfiles.push_back({std::move(file), until});
  return keeping;
}

bool trybusyfilesagain(Game& game) {
  bool lost = false;
  std::erase_if(game.busyfiles, [&](const BusyFile& busy) {
    const Keeping keeping = attempt(game, busy.file);
    if (keeping == Keeping::waiting && Clock::now() < busy.until) return false;
    if (keeping != Keeping::done) busy.file.kind->failedlate(game);
    lost = lost || keeping != Keeping::done;
    return true;
  });
  if (lost) telllate(game);
  return !game.busyfiles.empty();
}

const std::string* waitingtext(const Game& game, std::string_view name) {
  const auto waiting = waitingfile(game.busyfiles, name);
  return waiting == game.busyfiles.end() ? nullptr : &waiting->file.text;
}

}  // namespace duskmarch
