#include "platform/sound/mixer.h"

#include <algorithm>
#include <string>

#include "platform/desktop.h"

namespace duskmarch {
namespace {

constexpr float underspeech = 0.5F;  // 6 dB

}  // namespace

template <class Change>
void Mixer::order(int slot, Change change) {
  if (slot < 0 || slot >= slotcount) {
    throw PlatformError("there is no sound buffer " + std::to_string(slot));
  }
  const std::lock_guard guard(control_);
  Slot& changed = slots_[static_cast<std::size_t>(slot)];
  change(changed.wanted);
  changed.wanted.levels = levels(changed.wanted.volume, changed.wanted.pan);
  changed.orders.post(changed.wanted);
}

void Mixer::load(int slot, std::shared_ptr<const Clip> clip) {
  order(slot, [&](Order& wanted) {
    const unsigned cue = wanted.cue + 1;
    wanted = {};
    wanted.clip = std::move(clip);
    wanted.cue = cue;
  });
}

void Mixer::setvolume(int slot, int volume) {
  order(slot, [&](Order& wanted) { wanted.volume = volume; });
}

void Mixer::setpan(int slot, int pan) {
  order(slot, [&](Order& wanted) { wanted.pan = pan; });
}

void Mixer::play(int slot, bool loop) {
  order(slot, [&](Order& wanted) {
    wanted.sounding = wanted.clip != nullptr;
    wanted.loop = loop;
    ++wanted.cue;
  });
}

void Mixer::addsource(std::shared_ptr<AudioSource> source) {
  const std::lock_guard guard(control_);
  sources_.push_back(std::move(source));
  sourcelists_.post(sources_);
}

void Mixer::removesource(const AudioSource& source) {
  const std::lock_guard guard(control_);
  std::erase_if(sources_, [&](const auto& kept) { return kept.get() == &source; });
  sourcelists_.post(sources_);
}

void Mixer::tidy() {
  const std::lock_guard guard(control_);
  for (Slot& slot : slots_) slot.orders.tidy();
  sourcelists_.tidy();
  cues_.tidy();
  ambience_.tidy();
}

void Mixer::render(float* samples, std::size_t frames) noexcept {
  const std::uint64_t now = clock_;
  clock_ = now + frames;  // what is asked for from here on waits for the next block
  std::fill_n(samples, 2 * frames, 0.0F);
  for (Slot& slot : slots_) slot.mix(samples, frames);
  const bool speech = mixsources(samples, frames) || speaking_;
  cues_.mix(samples, frames, now, speech ? underspeech : 1.0F);
  ambience_.mix(samples, frames, now, 1.0F);
  for (std::size_t n = 0; n < 2 * frames; ++n) samples[n] = std::clamp(samples[n], -1.0F, 1.0F);
}

bool Mixer::mixsources(float* samples, std::size_t frames) noexcept {
  bool speech = false;
  const Sources* sources = sourcelists_.read();
  if (sources == nullptr) return speech;
  for (const auto& source : *sources) {
    speech = source->speaks() || speech;
    source->mix(samples, frames);
  }
  return speech;
}

void Mixer::skip(std::size_t frames) noexcept {
  for (Slot& slot : slots_) slot.skip(frames);
  cues_.skip(frames, clock_);
  ambience_.skip(frames, clock_);
  clock_ += frames;
}

const Mixer::Order* Mixer::Slot::heard() noexcept {
  const Order* order = orders.read();
  if (order == nullptr) return nullptr;
  if (order->cue != cue) {
    cue = order->cue;
    position = 0;
    playing = order->sounding;
  }
  return playing ? order : nullptr;
}

void Mixer::Slot::mix(float* samples, std::size_t frames) noexcept {
  const Order* order = heard();
  if (order == nullptr) return;
  while (playing && frames > 0) {
    const std::size_t count = std::min(frames, order->clip->frames() - position);
    const Clip& clip = *order->clip;
    const float* from = &clip.samples[position * clip.channels];
    addframes(from, clip.channels, order->levels, samples, count);
    advance(*order, count);
    samples += 2 * count;
    frames -= count;
  }
}

void Mixer::Slot::skip(std::size_t frames) noexcept {
  if (const Order* order = heard()) advance(*order, frames);
}

void Mixer::Slot::advance(const Order& order, std::size_t frames) noexcept {
  position += frames;
  if (position < order.clip->frames()) return;
  position %= order.clip->frames();
  playing = order.loop;
}

}  // namespace duskmarch
