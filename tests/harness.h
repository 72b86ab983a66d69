// A player at the stand-in desktop: keys in, events out, in a program folder of its own.
#pragma once

#include <atomic>
#include <filesystem>
#include <fstream>
#include <functional>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "platform/replay/replaysession.h"
#include "shell/speech/keycodes.h"
#include "testsystem.h"
#include "values/pathtext.h"
#include "world/tables.h"

namespace duskmarch {

// The content of a file; empty when there is none.
inline std::string filetext(const std::filesystem::path& file) {
  std::ostringstream content;
  content << std::ifstream(file, std::ios::binary).rdbuf();
  return content.str();
}

// A fresh folder with the game's sounds in it, named as only Unicode can; gone with the object.
class ProgramFolder {
 public:
  ProgramFolder() {
    static std::atomic<int> count = 0;
    path = scratchfolder() / pathof("duskmarch żółw ψ " + std::to_string(processid()) + "-" +
                                    std::to_string(++count));
    std::filesystem::remove_all(path);  // of one that was killed
    std::filesystem::create_directories(path / "sounds");
    for (const std::string name : {"sounds/menu", "sounds/game"}) {
      std::filesystem::copy(SOURCE_FOLDER / std::filesystem::path(name), path / name);
    }
    for (const std::string name : {"sounds/cues", "sounds/ambience"}) {  // large, and only read
      sharefolder(SOURCE_FOLDER / std::filesystem::path(name), path / name);
    }
  }
  ~ProgramFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path, ignored);
  }
  ProgramFolder(const ProgramFolder&) = delete;
  ProgramFolder& operator=(const ProgramFolder&) = delete;

  void write(std::string_view name, std::string_view content) const {
    std::ofstream(path / pathof(name), std::ios::binary) << content;
  }
  std::string read(std::string_view name) const { return filetext(path / pathof(name)); }

  std::filesystem::path path;
};

// "One|Two": for lists that are compared at once.
template <class Texts>
std::string joined(const Texts& texts) {
  std::string all;
  for (const std::string& text : texts) all += (all.empty() ? "" : "|") + text;
  return all;
}

class Player {
 public:
  using Events = std::vector<std::string>;  // "voice\tMain menu", "show\tsummary\t...", ...

  // Starts the program in a folder of its own, or in an earlier player's `folder`.
  explicit Player(ReplayOptions options = {})
      : own_(options.folder.empty() ? std::make_unique<ProgramFolder>() : nullptr),
        session_(placed(std::move(options))) {}

  // The events since the start or since the last call that returned some.
  Events events() {
    std::istringstream text(session_.replay.transcript.text());
    session_.replay.transcript.clear();
    Events lines;
    for (std::string line; std::getline(text, line);) lines.push_back(line);
    return lines;
  }
  // What one key press, or anything else done to the game, brings about.
  Events press(int keycode, int shift = 0) {
    return during([&] { session_.presskey({.keycode = keycode, .shift = shift}); });
  }
  Events during(const std::function<void()>& action) {
    session_.replay.transcript.clear();
    action();
    return events();
  }
  // What the voice is told during `action`, empty texts left out.
  std::vector<std::string> spoken(const std::function<void()>& action) {
    std::vector<std::string> texts;
    for (const std::string& event : during(action)) {
      if (event.starts_with("voice\t") && event.size() > 6) texts.push_back(event.substr(6));
    }
    return texts;
  }
  std::vector<std::string> spokenby(int keycode, int shift = 0) {
    return spoken([&] { session_.presskey({.keycode = keycode, .shift = shift}); });
  }
  // Queues what is typed into the next input box.
  void answer(std::string text) { session_.replay.dialogs.answers.emplace_back(std::move(text)); }

  Game& game() { return session_.game; }
  ReplaySession& session() { return session_; }
  const ProgramFolder& folder() const { return *own_; }

 private:
  ReplayOptions placed(ReplayOptions options) const {
    if (own_) options.folder = own_->path;
    return options;
  }

  std::unique_ptr<ProgramFolder> own_;
  ReplaySession session_;
};

// A hero or an enemy on a tile, for tests that set up a fight of their own.
inline int place(Game& game, std::string name, int side, int x, int y, int health, int fight) {
  const int slot =
      newmob(game, {.name = name,
                    .gender = "M",
                    .type = side == aliance::heroes ? mobtype::hero : mobtype::ordinary,
                    .health = health,
                    .x = x,
                    .y = y,
                    .fight = fight});
  game.mob(slot).aliance = side;
  return slot;
}

}  // namespace duskmarch
