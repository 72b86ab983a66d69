// The sound device through SDL.
#include <cstdint>
#include <string>
#include <utility>

#include <SDL.h>

#include "platform/desktop.h"
#include "platform/sound/outputdevice.h"

namespace duskmarch {
namespace {

constexpr Uint16 blockframes = 512;  // 256 underrun on a busy machine
class SdlDevice final : public OutputDevice {
 public:
  explicit SdlDevice(std::shared_ptr<Mixer> mixer) : feed_(std::move(mixer)) {}
  SdlDevice(const SdlDevice&) = delete;
  SdlDevice& operator=(const SdlDevice&) = delete;
  ~SdlDevice() override;

  // Once a device was opened, always the same driver is tried: another might take the hardware from
  // a sound server that is just being restarted.
  void open() override;
  void close() override;
  bool lost(int patience) override;

 private:
  DeviceFeed feed_;
  SDL_AudioDeviceID device_ = 0;
  std::string driver_;
};

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
  wanted.userdata = &feed_;
  wanted.callback = [](void* user, Uint8* bytes, int size) {
    static_cast<DeviceFeed*>(user)->fill(reinterpret_cast<float*>(bytes),
                                         static_cast<std::size_t>(size) / (2 * sizeof(float)));
  };
  device_ = SDL_OpenAudioDevice(nullptr, 0, &wanted, nullptr, 0);
  if (device_ == 0) {
    const std::string reason = SDL_GetError();
    SDL_AudioQuit();
    throw PlatformError(reason);
  }
  driver_ = SDL_GetCurrentAudioDriver();
  feed_.opened();
  SDL_PauseAudioDevice(device_, 0);
}

void SdlDevice::close() {
  if (device_ == 0) return;
  SDL_CloseAudioDevice(device_);
  SDL_AudioQuit();
  device_ = 0;
}

bool SdlDevice::lost(int patience) {
  return feed_.quiet(patience) || SDL_GetAudioDeviceStatus(device_) == SDL_AUDIO_STOPPED;
}

}  // namespace

std::unique_ptr<OutputDevice> createoutputdevice(std::shared_ptr<Mixer> mixer) {
  return std::make_unique<SdlDevice>(std::move(mixer));
}

}  // namespace duskmarch
