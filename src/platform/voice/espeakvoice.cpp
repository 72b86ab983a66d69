#include "platform/voice/espeakvoice.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <system_error>
#include <utility>

#include "platform/voice/engines.h"
#include "platform/voice/plaintext.h"
#include "values/speechrate.h"

namespace duskmarch {
namespace {

// The synthesizer's speech peaks near full scale; this leaves room for the sounds beside it.
constexpr float gain = 0.7F;

// At rate 1, and how much faster each rate is than the one before.
constexpr int slowest = 145;
constexpr int ratestep = 30;
constexpr int startrate = 2;

// Between a text and one that follows it, so that they are not heard as one sentence.
constexpr std::array<float, mixrate / 10> pause{};

// How often a worker that is far enough ahead looks for room: the audio thread wakes nobody.
constexpr std::chrono::milliseconds roomcheck{20};

// Below the softest sound of speech, about -60 dB.
constexpr int silence = 33;

std::span<const std::int16_t> fromfirstsound(std::span<const std::int16_t> samples) {
  const auto sound = std::ranges::find_if(
      samples, [](std::int16_t sample) { return std::abs(int{sample}) >= silence; });
  return {sound, samples.end()};
}

}  // namespace

int wordsaminute(int rate) {
  return slowest + ratestep * (std::clamp(rate, speechrate::slowest, speechrate::fastest) -
                               speechrate::slowest);
}

EspeakVoice::EspeakVoice(std::shared_ptr<SpeechStream> stream, SpeechLog log,
                         const std::filesystem::path& data)
    : stream_(std::move(stream)),
      log_(std::move(log)),
      espeak_(Espeak::instance(data)),
      resampler_(espeak_.samplerate(), gain),
      rate_(startrate),
      worker_([this] { work(); }) {}

EspeakVoice::~EspeakVoice() {
  {
    const std::lock_guard guard(mutex_);
    ending_ = true;
    // A voice that came after this one may be speaking already.
    if (stream_->current(turn_)) stream_->cut();
  }
  wake_.notify_one();
  worker_.join();
}

void EspeakVoice::setrate(int rate) {
  const std::lock_guard guard(mutex_);
  rate_ = rate;
}

void EspeakVoice::speak(std::string_view text) {
  std::string plain = sayabletext(text);
  {
    const std::lock_guard guard(mutex_);
    turn_ = stream_->cut();
    waiting_.clear();
    if (!plain.empty()) waiting_.push_back({std::move(plain), turn_, rate_, voice_});
  }
  wake_.notify_one();
}

void EspeakVoice::speakafter(std::string_view text) {
  std::string plain = sayabletext(text);
  if (plain.empty()) return;
  {
    const std::lock_guard guard(mutex_);
    waiting_.push_back({std::move(plain), turn_, rate_, voice_});
  }
  wake_.notify_one();
}

std::vector<std::string> EspeakVoice::voicenames() {
  speak({});
  std::vector<std::string> names;
  for (const NamedVoice& voice : espeak_.voices()) names.push_back(voice.name);
  return names;
}

bool EspeakVoice::setvoice(std::string_view name) {
  speak({});
  const std::vector<NamedVoice>& voices = espeak_.voices();
  const auto found = std::ranges::find(voices, name, &NamedVoice::name);
  if (!name.empty() && found == voices.end()) return false;
  const std::lock_guard guard(mutex_);
  voice_ = name.empty() ? std::string() : found->file;
  return true;
}

bool EspeakVoice::idle() const {
  const std::lock_guard guard(mutex_);
  return waiting_.empty() && !saying_;
}

void EspeakVoice::work() {
  std::unique_lock lock(mutex_);
  for (;;) {
    saying_ = false;
    wake_.wait(lock, [this] { return ending_ || !waiting_.empty(); });
    if (ending_) return;
    const Utterance next = std::move(waiting_.front());
    waiting_.pop_front();
    saying_ = true;
    lock.unlock();
    try {
      say(next);
    } catch (const std::exception& error) {
      log_(error.what());
    }
    lock.lock();
  }
}

void EspeakVoice::say(const Utterance& utterance) {
  if (!stream_->drained() && !pass(utterance.turn, pause)) return;
  const SampleSink<float> queue = [&](std::span<const float> samples) {
    return pass(utterance.turn, samples);
  };
  // What the player hears of a key must not begin with a silence.
  bool begun = false;
  resampler_.reset();
  espeak_.say(utterance.text, wordsaminute(utterance.rate), utterance.voice,
              [&](std::span<const std::int16_t> samples) {
                if (!begun) samples = fromfirstsound(samples);
                begun = !samples.empty();
                return begun ? resampler_.feed(samples, false, queue)
                             : stream_->current(utterance.turn);
              });
  resampler_.feed({}, true, queue);
}

bool EspeakVoice::pass(SpeechStream::Turn turn, std::span<const float> samples) {
  for (;;) {
    const auto taken = stream_->offer(turn, samples);
    if (!taken) return false;
    samples = samples.subspan(*taken);
    if (samples.empty()) return true;
    std::unique_lock lock(mutex_);
    wake_.wait_for(lock, roomcheck, [&] { return !stream_->current(turn); });
  }
}

std::unique_ptr<Voice> createespeakvoice(std::shared_ptr<SpeechStream> stream, SpeechLog log,
                                         const std::filesystem::path& data) {
  try {
    return std::make_unique<EspeakVoice>(std::move(stream), std::move(log), data);
  } catch (const std::system_error& error) {
    throw PlatformError(std::string("the voice cannot be started: ") + error.what());
  }
}

}  // namespace duskmarch
