#include "platform/replay/replaysession.h"

#include <charconv>
#include <chrono>
#include <optional>
#include <thread>

#include "campaign/savegame.h"
#include "platform/replay/seednumber.h"
#include "platform/replay/statelines.h"
#include "shell/keyboard.h"
#include "shell/speech/busyfiles.h"
#include "shell/speech/selfreading.h"
#include "shell/startup.h"
#include "values/scriptlines.h"
#include "values/textfile.h"
#include "world/chance.h"
#include "world/drawnmap.h"

namespace duskmarch {

namespace {

int wholenumber(std::string_view text) {
  int value = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (error != std::errc() || end != text.data() + text.size()) {
    throw BadCommand("not a number: " + std::string(text));
  }
  return value;
}

void expectnothing(std::string_view rest) {
  if (!trim(rest).empty()) throw BadCommand("nothing may follow: " + std::string(rest));
}

}  // namespace

ReplaySession::ReplaySession(const ReplayOptions& options)
    : replay(options), game(replay.desktop()) {
  replay.dialogs.game = &game;
  replay.window.game = &game;
  startup(game);
}

void ReplaySession::perform(std::string_view line) {
  if (!line.empty() && line.back() == '\r') line.remove_suffix(1);
  if (line.empty() || line.front() == '#') return;
  const std::size_t space = std::min(line.find(' '), line.size());
  const Command command =
      parse(line.substr(0, space), line.substr(std::min(space + 1, line.size())));
  replay.transcript.line("> " + std::string(line));
  command();
  while (trybusyfilesagain(game)) std::this_thread::sleep_for(std::chrono::milliseconds(1));
}

ReplaySession::Command ReplaySession::parse(std::string_view name, std::string_view rest) {
  if (name == "key") return parsekey(rest);
  if (name == "seed") return parseseeding(rest);
  if (name == "answer") {
    return [this, answer = unescaped(rest)] { replay.dialogs.answers.emplace_back(answer); };
  }
  expectnothing(rest);
  if (name == "cancel") return [this] { replay.dialogs.answers.emplace_back(std::nullopt); };
  if (name == "save") return [this] { savegame(game, "game.sav"); };
  if (name == "load") return [this] { loadgame(game, "game.sav"); };
  if (name == "draw") return [this] { draw(); };
  if (name == "state") return [this] { writestate(game, replay.transcript); };
  throw BadCommand("no such command: " + std::string(name));
}

ReplaySession::Command ReplaySession::parsekey(std::string_view rest) {
  const std::string_view words = trim(rest);
  const std::size_t space = std::min(words.find(' '), words.size());
  const std::string_view shift = trim(words.substr(space));
  const KeyPress key{.keycode = wholenumber(words.substr(0, space)),
                     .shift = shift.empty() ? 0 : wholenumber(shift)};
  return [this, key] { presskey(key); };
}

ReplaySession::Command ReplaySession::parseseeding(std::string_view rest) {
  const auto number = parseseed(trim(rest));
  if (!number) throw BadCommand("not a number: " + std::string(rest));
  return [this, number] { seed(game, *number); };
}

ReplayPage& ReplaySession::focusedpage() {
  switch (game.focus) {
    case Focus::summarylabel: return replay.summary;
    case Focus::helplabel: return replay.help;
    default: return replay.story;
  }
}

void ReplaySession::presskey(KeyPress key) {
  const Focus focus = game.focus;
  keypress(game, key);
  if (focus == Focus::window || focus != game.focus) return;
  if (const auto reached = focusedpage().movecaret(key.keycode)) caretmoved(game, *reached);
}

void ReplaySession::draw() {
  replay.window.drawon(&replay.canvas);
  drawscreen(game);
  replay.window.drawon(nullptr);
}

}  // namespace duskmarch
