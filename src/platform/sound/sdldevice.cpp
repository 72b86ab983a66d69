#include "platform/sound/sdldevice.h"

#include <SDL.h>

#include "platform/desktop.h"

namespace duskmarch {
namespace {

constexpr Uint16 blockframes = 512;  // 256 underrun on a busy machine
constexpr std::chrono::seconds longestpause{1};

std::size_t framesin(std::chrono::steady_clock::duration time) {
  return static_cast<std::size_t>(std::chrono::duration<double>(time).count() * mixrate);
}

}  // namespace

SdlDevice::SdlDevice(std::shared_ptr<Mixer> mixer) : mixer_(std::move(mixer)) {}

SdlDevice::~SdlDevice() {
  close();
  SDL_TLSCleanup();  // its thread is none that SDL made
}

void SdlDevice::open() {
  SDL_SetHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1");
  SDL_SetHint(SDL_HINT_AUDIO_DEVICE_APP_NAME, "Duskmarch");
  SDL_SetHint(SDL_HINT_AUDIO_DEVICE_STREAM_ROLE, "game");
  if (SDL_AudioInit(driver_.empty() ? nullptr : driver_.c_str()) != 0) {
    throw PlatformError(SDL_GetError());
  }
  SDL_AudioSpec wanted{};
  wanted.freq = mixrate;
  wanted.format = AUDIO_F32SYS;
  wanted.channels = 2;
  wanted.samples = blockframes;
  wanted.userdata = this;
  wanted.callback = [](void* user, Uint8* bytes, int size) {
    static_cast<SdlDevice*>(user)->fill(reinterpret_cast<float*>(bytes),
                                        static_cast<std::size_t>(size) / (2 * sizeof(float)));
  };
  device_ = SDL_OpenAudioDevice(nullptr, 0, &wanted, nullptr, 0);
  if (device_ == 0) {
    const std::string reason = SDL_GetError();
    SDL_AudioQuit();
    throw PlatformError(reason);
  }
  driver_ = SDL_GetCurrentAudioDriver();
  quietcalls_ = 0;
  SDL_PauseAudioDevice(device_, 0);
}

void SdlDevice::close() {
  if (device_ == 0) return;
  SDL_CloseAudioDevice(device_);
  SDL_AudioQuit();
  device_ = 0;
}

bool SdlDevice::lost(int patience) {
  const unsigned ticks = ticks_.load(std::memory_order_relaxed);
  quietcalls_ = ticks == seenticks_ ? quietcalls_ + 1 : 0;
  seenticks_ = ticks;
  return quietcalls_ >= patience || SDL_GetAudioDeviceStatus(device_) == SDL_AUDIO_STOPPED;
}

void SdlDevice::fill(float* samples, std::size_t frames) noexcept {
  const auto now = std::chrono::steady_clock::now();
  const bool first = ticks_.fetch_add(1, std::memory_order_relaxed) == 0;
  // Effects that were started while the device was away must not come all at once now.
  if (!first && now - lastfill_ > longestpause) mixer_->skip(framesin(now - lastfill_));
  lastfill_ = now;
  mixer_->render(samples, frames);
}

}  // namespace duskmarch
