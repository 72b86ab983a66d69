#include "platform/sound/timedvoices.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace duskmarch {
namespace {

// Of a level's whole range, from one frame to the next: down in a twentieth of a second, so that
// speech is not in the way of anything; up in half of one, so that pauses are not heard as pumping.
constexpr float down = 1.0F / 2400;
constexpr float up = 1.0F / 24000;

constexpr double inaudible = 1e-6;

constexpr std::size_t blockframes = 256;

// Two that cross stay about equally loud together.
float softened(double level) {
  return static_cast<float>(level * (1.5 - 0.5 * level * level));
}

// Between `b` and `c`, through their neighbours; `b` itself at 0.
float between(float a, float b, float c, float d, float part) {
  const float slope = 0.5F * (c - a);
  const float square = a - 2.5F * b + 2 * c - 0.5F * d;
  const float cube = 0.5F * (d - a) + 1.5F * (b - c);
  return b + part * (slope + part * (square + part * cube));
}

}  // namespace

struct TimedVoices::Voice {
  Voice(TimedSound what, std::uint64_t which)
      : sound(std::move(what)), number(which), step(std::exp2(sound.pitch / 1200.0)) {}

  const TimedSound sound;
  const std::uint64_t number;
  const double step;               // frames of the clip from one frame to the next
  std::atomic<bool> over = false;  // the audio thread has done with it for good
  // The rest is the audio thread's own.
  bool begun = false;
  bool ending = false;
  double position = 0;
  double fade = 0;  // 0 to 1

  bool lives() const noexcept { return begun && !over; }
  bool sounding() const noexcept { return lives() && !ending; }
  // Until it begins, from `now` on; 0 once it has begun.
  std::size_t framesbefore(std::uint64_t now) const noexcept {
    return sound.start <= now ? 0 : static_cast<std::size_t>(sound.start - now);
  }
  float sample(std::ptrdiff_t frame, std::size_t side) const noexcept;
  float heard(std::size_t side) const noexcept;
  void advance(double frames) noexcept;
  void nextfade(const Manner& manner) noexcept;
};

float TimedVoices::Voice::sample(std::ptrdiff_t frame, std::size_t side) const noexcept {
  const Clip& clip = *sound.clip;
  const auto length = static_cast<std::ptrdiff_t>(clip.frames());
  if (sound.loop) frame = (frame + length) % length;
  if (frame < 0 || frame >= length) return 0;
  return clip.samples[static_cast<std::size_t>(frame) * clip.channels + side];
}

float TimedVoices::Voice::heard(std::size_t side) const noexcept {
  const auto frame = static_cast<std::ptrdiff_t>(position);
  const auto part = static_cast<float>(position - static_cast<double>(frame));
  const std::size_t channel = std::min(side, sound.clip->channels - 1);
  if (part == 0) return sample(frame, channel);
  return between(sample(frame - 1, channel), sample(frame, channel), sample(frame + 1, channel),
                 sample(frame + 2, channel), part);
}

void TimedVoices::Voice::advance(double frames) noexcept {
  const auto length = static_cast<double>(sound.clip->frames());
  position += frames * step;
  if (position < length) return;
  if (sound.loop) {
    position = std::fmod(position, length);
  } else {
    over = true;
  }
}

void TimedVoices::Voice::nextfade(const Manner& manner) noexcept {
  if (ending) {
    fade -= 1.0 / manner.fadeout;
    if (fade > inaudible) return;
    fade = 0;
    over = true;
  } else if (fade < 1) {
    fade = std::min(1.0, fade + 1.0 / manner.fadein);
  }
}

void TimedVoices::start(std::vector<TimedSound> sounds) {
  const std::lock_guard guard(control_);
  forgetplayed();
  for (TimedSound& sound : sounds) {
    wanted_.push_back(std::make_shared<Voice>(std::move(sound), ++count_));
  }
  scores_.post(wanted_);
}

void TimedVoices::stop() {
  const std::lock_guard guard(control_);
  stopped_ = count_;
}

void TimedVoices::tidy() {
  const std::lock_guard guard(control_);
  const std::size_t before = wanted_.size();
  forgetplayed();
  if (wanted_.size() != before) scores_.post(wanted_);
  scores_.tidy();
}

void TimedVoices::forgetplayed() {
  std::erase_if(wanted_, [](const auto& voice) { return voice->over.load(); });
}

void TimedVoices::mix(float* samples, std::size_t frames, std::uint64_t now, float share) noexcept {
  const Score* score = scores_.read();
  if (score == nullptr) return;
  const float target = level_ * share;
  while (frames > 0) {
    const std::size_t count = std::min(frames, blockframes);
    cutstopped(*score);
    if (std::ranges::none_of(*score, &Voice::lives)) heard_ = target;
    begindue(*score, now + count);
    mixblock(*score, samples, count, now, target);
    samples += 2 * count;
    now += count;
    frames -= count;
  }
}

void TimedVoices::cutstopped(const Score& score) noexcept {
  const std::uint64_t stopped = stopped_;
  for (const auto& voice : score) {
    if (voice->number > stopped) break;
    voice->ending = true;
    if (!voice->begun) voice->over = true;
  }
}

void TimedVoices::begindue(const Score& score, std::uint64_t end) noexcept {
  for (const auto& voice : score) {
    if (voice->begun || voice->over || voice->sound.start >= end) continue;
    voice->begun = true;
    voice->fade = manner_.fadein == 0 ? 1 : 0;
    makeroom(score, *voice);
  }
}

void TimedVoices::makeroom(const Score& score, Voice& newcomer) noexcept {
  const auto sounding = std::ranges::count_if(score, &Voice::sounding);
  if (static_cast<std::size_t>(sounding) <= manner_.atonce) return;
  Voice* lightest = nullptr;
  for (const auto& voice : score) {
    if (!voice->sounding()) continue;
    if (lightest == nullptr || voice->sound.weight < lightest->sound.weight) lightest = voice.get();
  }
  lightest->ending = true;
  if (lightest == &newcomer) newcomer.over = true;
}

void TimedVoices::mixblock(const Score& score, float* samples, std::size_t frames,
                           std::uint64_t now, float target) noexcept {
  std::array<float, blockframes> gains;
  for (std::size_t n = 0; n < frames; ++n) {
    heard_ = std::clamp(target, heard_ - down, heard_ + up);
    gains[n] = heard_;
  }
  for (const auto& voice : score) {
    if (!voice->lives()) continue;
    const std::size_t late = voice->framesbefore(now);
    mixvoice(*voice, samples + 2 * late, gains.data() + late, frames - late);
  }
}

void TimedVoices::mixvoice(Voice& voice, float* samples, const float* gains,
                           std::size_t frames) noexcept {
  for (std::size_t n = 0; n < frames && !voice.over; ++n) {
    voice.nextfade(manner_);
    const float gain = gains[n] * softened(voice.fade);
    samples[2 * n] += gain * voice.sound.levels.left * voice.heard(0);
    samples[2 * n + 1] += gain * voice.sound.levels.right * voice.heard(1);
    voice.advance(1);
  }
}

void TimedVoices::skip(std::size_t frames, std::uint64_t now) noexcept {
  const Score* score = scores_.read();
  if (score == nullptr) return;
  cutstopped(*score);
  for (const auto& voice : *score) {
    if (voice->over || voice->sound.start >= now + frames) continue;
    const std::size_t late = voice->framesbefore(now);
    voice->begun = true;
    voice->fade = 1;
    if (voice->ending) voice->over = true;
    voice->advance(static_cast<double>(frames - late));
  }
}

}  // namespace duskmarch
