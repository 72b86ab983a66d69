#include "platform/voice/steadyspeech.h"

#include <string>
#include <system_error>
#include <utility>

#include "platform/voice/plaintext.h"

namespace duskmarch {

SteadySpeech::SteadySpeech(Make make, std::shared_ptr<Voice> ownvoice, SpeechLog log,
                           std::chrono::milliseconds patience)
    : make_(std::move(make)),
      ownvoice_(std::move(ownvoice)),
      log_(std::move(log)),
      patience_(patience) {
  made();
  try {
    watcher_ = std::thread([this] { watch(); });
  } catch (const std::system_error& error) {
    throw PlatformError(std::string("the speech engine cannot be watched: ") + error.what());
  }
}

SteadySpeech::~SteadySpeech() {
  {
    const std::lock_guard guard(mutex_);
    ending_ = true;
  }
  wake_.notify_one();
  watcher_.join();
}

void SteadySpeech::saystring(std::string_view text) {
  if (text.empty()) return;
  const std::lock_guard guard(mutex_);
  if (!made() || engine_->lost()) return sayinstead(text);
  told_ = false;
  engine_->saystring(text);
  watching_ = ownvoice_ != nullptr;  // else the engine goes on trying
  wake_.notify_one();
}

void SteadySpeech::interrupt() {
  const std::lock_guard guard(mutex_);
  if (engine_) engine_->interrupt();
  if (std::exchange(instead_, false)) ownvoice_->hush();
}

bool SteadySpeech::there() {
  const std::lock_guard guard(mutex_);
  return made() && !away();
}

bool SteadySpeech::made() {
  if (engine_) return true;
  try {
    engine_ = make_();
  } catch (const PlatformError&) {
    return false;  // which is told by the voice that speaks instead
  }
  return true;
}

bool SteadySpeech::away() {
  if (engine_->lost()) return true;
  const auto since = engine_->stucksince();
  return since && LosableSpeech::Clock::now() >= *since + patience_;
}

void SteadySpeech::sayinstead(std::string_view text) {
  if (!ownvoice_) throw PlatformError("there is no speech engine, and no voice instead");
  const bool known = std::exchange(told_, true);
  ownvoice_->speakafter(known ? std::string(text) : "Speech service lost.  " + sayabletext(text));
  instead_ = true;
}

void SteadySpeech::takeover() {
  try {
    for (const std::string& text : engine_->giveup()) sayinstead(text);
  } catch (const std::exception& error) {
    log_(error.what());
  }
}

void SteadySpeech::watch() {
  std::unique_lock lock(mutex_);
  for (;;) {
    wake_.wait(lock, [this] { return ending_ || watching_; });
    if (ending_) return;
    const auto since = engine_->stucksince();
    if (since && LosableSpeech::Clock::now() < *since + patience_) {
      wake_.wait_until(lock, *since + patience_);
      continue;
    }
    if (since) takeover();
    watching_ = false;
  }
}

}  // namespace duskmarch
