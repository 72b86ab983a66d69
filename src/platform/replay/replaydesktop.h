// A desktop without a desktop: everything that the game shows, says and plays becomes a line of a
// transcript, and what the player would type comes from a queue.
#pragma once

#include <cstdint>
#include <deque>
#include <filesystem>
#include <optional>
#include <string>

#include "platform/desktop.h"
#include "platform/replay/caret.h"
#include "platform/replay/transcript.h"

namespace duskmarch {

struct Game;

struct ReplayOptions {
  std::filesystem::path folder = {};  // the program folder
  std::filesystem::path files = {};   // the folder of the game's files; empty: the program folder
  bool alreadyrunning = false;        // another game has its files there
  std::uint32_t seed = 1;
  bool voice = true;   // the voice can be created
  bool jaws = false;   // the JAWS interface can be created
  bool reader = true;  // a screen reader is attached
};

class ReplaySystem final : public System {
 public:
  ReplaySystem(ReplayOptions options, Transcript& transcript);
  std::filesystem::path programfolder() const override { return options_.folder; }
  std::filesystem::path filesfolder() const override {
    return options_.files.empty() ? options_.folder : options_.files;
  }
  bool alreadyrunning() const override { return options_.alreadyrunning; }
  std::uint32_t secondssincemidnight() const override { return options_.seed; }
  std::unique_ptr<Voice> createvoice() override;
  std::unique_ptr<JawsApi> createjaws() override;
  std::unique_ptr<SoundDevice> opensound() override;
  std::unique_ptr<MusicGraph> createmusic(const std::filesystem::path& file) override;
  bool readerattached() const override { return options_.reader; }
  void end() override;

 private:
  ReplayOptions options_;
  Transcript& transcript_;
};

class ReplayWindow : public Window {
 public:
  explicit ReplayWindow(Transcript& transcript) : transcript_(transcript) {}
  void settitle(std::string_view title) override;
  Canvas* spokenline() override { return canvas_; }
  Canvas* map(int, int) override { return canvas_; }
  void processevents() override {}
  void wait(std::chrono::milliseconds duration) override;
  void sendkey(int keycode, bool down) override;
  // Drawing goes there; null: nowhere.
  void drawon(Canvas* canvas) { canvas_ = canvas; }

  Game* game = nullptr;  // whose keys wait

 private:
  Transcript& transcript_;
  Canvas* canvas_ = nullptr;
};

class ReplayCanvas final : public Canvas {
 public:
  explicit ReplayCanvas(Transcript& transcript) : transcript_(transcript) {}
  int width() const override { return 1288; }
  int height() const override { return 660; }
  void fill(const Rect& area, Colour colour) override;
  void outline(const Rect& area, Colour colour) override;
  void text(const Text& text) override;

 private:
  void shape(std::string_view name, const Rect& area, Colour colour);
  Transcript& transcript_;
};

class ReplayPage final : public Page {
 public:
  ReplayPage(std::string_view name, Transcript& transcript)
      : name_(name), transcript_(transcript) {}
  void show(std::string_view text) override;
  void setname(std::string_view /*name*/) override {}
  void hide() override { transcript_.event("hide", name_); }
  void focus() override { transcript_.event("focus", name_); }
  // What an arrow key reaches in the text shown; nothing for other keys.
  std::optional<std::string_view> movecaret(int keycode);

 private:
  std::string_view name_;
  Transcript& transcript_;
  std::string text_;
  std::optional<Caret> caret_;  // made at the first caret key
};

class ReplayDialogs final : public Dialogs {
 public:
  explicit ReplayDialogs(Transcript& transcript) : transcript_(transcript) {}
  std::string input(std::string_view title, std::string_view prompt) override;
  std::string choosedirection(std::string_view title, std::string_view prompt,
                              const ArrowAnswers& /*arrows*/) override {
    return input(title, prompt);  // a script types its answers
  }
  void message(std::string_view title, std::string_view text) override;

  std::deque<std::optional<std::string>> answers;  // nothing: the box is cancelled
  Game* game = nullptr;                            // hears what is typed

 private:
  Transcript& transcript_;
};

class ReplayDesktop {
 public:
  explicit ReplayDesktop(const ReplayOptions& options);
  // What the game is constructed with.
  Desktop& desktop() { return desktop_; }

  Transcript transcript;
  ReplaySystem system;
  ReplayWindow window;
  ReplayCanvas canvas;
  ReplayPage summary;
  ReplayPage story;
  ReplayPage help;
  ReplayDialogs dialogs;

 private:
  Desktop desktop_;
};

}  // namespace duskmarch
