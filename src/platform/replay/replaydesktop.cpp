#include "platform/replay/replaydesktop.h"

#include <array>
#include <cstdio>

#include "platform/replay/replayengines.h"
#include "shell/keyboard.h"
#include "shell/speech/selfreading.h"
#include "values/hundredths.h"
#include "values/utf8.h"

namespace duskmarch {

namespace {

std::string hexadecimal(Colour colour) {
  std::array<char, 7> digits{};
  std::snprintf(digits.data(), digits.size(), "%02X%02X%02X", colour.red, colour.green,
                colour.blue);
  return digits.data();
}

}  // namespace

ReplaySystem::ReplaySystem(ReplayOptions options, Transcript& transcript)
    : options_(std::move(options)), transcript_(transcript) {}

std::unique_ptr<Voice> ReplaySystem::createvoice() {
  if (!options_.voice) throw PlatformError("there is no voice");
  return std::make_unique<ReplayVoice>(transcript_);
}

std::unique_ptr<JawsApi> ReplaySystem::createjaws() {
  if (!options_.jaws) throw PlatformError("there is no JAWS interface");
  return std::make_unique<ReplayJaws>(transcript_);
}

std::unique_ptr<SoundDevice> ReplaySystem::opensound() {
  return std::make_unique<ReplaySound>(transcript_);
}

std::unique_ptr<MusicGraph> ReplaySystem::createmusic(const std::filesystem::path& file) {
  return std::make_unique<ReplayMusic>(file);
}

void ReplaySystem::end() {
  transcript_.event("end");
  transcript_.close();
}

void ReplayWindow::settitle(std::string_view title) {
  transcript_.event("title", title);
}

void ReplayWindow::wait(std::chrono::milliseconds duration) {
  if (game != nullptr) handlewaitingkeys(*game);
  transcript_.event("wait", Hundredths::of(duration.count() / 10).text());
}

void ReplayWindow::sendkey(int keycode, bool down) {
  transcript_.event("synthetic", keycode, std::string_view(down ? "down" : "up"));
}

void ReplayCanvas::shape(std::string_view name, const Rect& area, Colour colour) {
  transcript_.event(name, area.left, area.top, area.right - area.left, area.bottom - area.top,
                    hexadecimal(colour));
}

void ReplayCanvas::fill(const Rect& area, Colour colour) {
  shape("fill", area, colour);
}

void ReplayCanvas::outline(const Rect& area, Colour colour) {
  shape("outline", area, colour);
}

void ReplayCanvas::text(const Text& text) {
  transcript_.event("text", text.x, text.y, text.font, text.points, hexadecimal(text.colour),
                    text.words);
}

void ReplayPage::show(std::string_view text) {
  text_ = text;
  caret_.reset();
  transcript_.event("show", name_, text);
}

std::optional<std::string_view> ReplayPage::movecaret(int keycode) {
  if (!caret_) caret_.emplace(text_);
  return caret_->move(keycode);
}

std::string ReplayDialogs::input(std::string_view title, std::string_view prompt) {
  std::optional<std::string> answer;
  if (!answers.empty()) {
    answer = std::move(answers.front());
    answers.pop_front();
  }
  std::string typed = answer.value_or("");
  for (std::size_t at = 0; game != nullptr && at < typed.size();) {
    const std::size_t size = codepointsize(typed, at);
    echotyped(*game, std::string_view(typed).substr(at, size));
    at += size;
  }
  transcript_.event("input", title, prompt, typed);
  return typed;
}

void ReplayDialogs::message(std::string_view title, std::string_view text) {
  transcript_.event("message", title, text);
}

ReplayDesktop::ReplayDesktop(const ReplayOptions& options)
    : system(options, transcript),
      window(transcript),
      canvas(transcript),
      summary("summary", transcript),
      story("story", transcript),
      help("help", transcript),
      dialogs(transcript),
      desktop_{system, window, summary, story, help, dialogs} {}

}  // namespace duskmarch
