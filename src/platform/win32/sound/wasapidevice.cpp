// The sound device that Windows plays on by default, shared with other programs.
#include <algorithm>
#include <atomic>
#include <memory>
#include <string>
#include <thread>
#include <utility>

#include <audioclient.h>
#include <avrt.h>
#include <mmdeviceapi.h>
#include <windows.h>

#include "platform/desktop.h"
#include "platform/sound/outputdevice.h"
#include "platform/win32/com.h"

namespace duskmarch {
namespace {

// In units of 100 ns. With less, Wine's sound server ran dry now and then.
constexpr REFERENCE_TIME buffertime = 30 * 10000;
// How long the device may ask for nothing before the thread looks whether it is to end.
constexpr DWORD wakeup = 100;

struct FreeTaskMemory {
  void operator()(void* memory) const { CoTaskMemFree(memory); }
};
struct CloseHandleOf {
  void operator()(HANDLE handle) const { CloseHandle(handle); }
};
using Event = std::unique_ptr<void, CloseHandleOf>;

WAVEFORMATEX floatstereo() {
  WAVEFORMATEX format{};
  format.wFormatTag = WAVE_FORMAT_IEEE_FLOAT;
  format.nChannels = 2;
  format.nSamplesPerSec = mixrate;
  format.wBitsPerSample = 8 * sizeof(float);
  format.nBlockAlign = 2 * sizeof(float);
  format.nAvgBytesPerSec = format.nSamplesPerSec * format.nBlockAlign;
  return format;
}

class WasapiDevice final : public OutputDevice {
 public:
  explicit WasapiDevice(std::shared_ptr<Mixer> mixer) : feed_(std::move(mixer)) {}
  WasapiDevice(const WasapiDevice&) = delete;
  WasapiDevice& operator=(const WasapiDevice&) = delete;
  ~WasapiDevice() override { end(); }

  void open() override;
  void close() override { end(); }
  // Also when another device has become the default one: the next open() takes that.
  bool lost(int patience) override;

 private:
  void end();
  ComPtr<IMMDevice> defaultdevice();
  static std::wstring idof(IMMDevice& device);
  void prepare(IMMDevice& device);
  void play();
  // Fills what room there is in the buffer.
  bool fill() noexcept;

  ComThread com_;
  DeviceFeed feed_;
  ComPtr<IMMDeviceEnumerator> devices_;
  std::wstring id_;
  ComPtr<IAudioClient> client_;
  ComPtr<IAudioRenderClient> renderer_;
  UINT32 frames_ = 0;  // in the whole buffer
  Event wanted_;
  std::atomic<bool> ending_ = false;
  std::atomic<bool> failed_ = false;
  std::thread player_;
};

ComPtr<IMMDevice> WasapiDevice::defaultdevice() {
  if (!devices_) {
    check(CoCreateInstance(__uuidof(MMDeviceEnumerator), nullptr, CLSCTX_ALL,
                           __uuidof(IMMDeviceEnumerator), devices_.putvoid()),
          "the system's sound cannot be reached");
  }
  ComPtr<IMMDevice> device;
  check(devices_->GetDefaultAudioEndpoint(eRender, eConsole, device.put()),
        "there is no sound device");
  return device;
}

std::wstring WasapiDevice::idof(IMMDevice& device) {
  wchar_t* id = nullptr;
  check(device.GetId(&id), "the sound device has no name");
  const std::unique_ptr<wchar_t, FreeTaskMemory> kept(id);
  return id;
}

void WasapiDevice::prepare(IMMDevice& device) {
  check(device.Activate(__uuidof(IAudioClient), CLSCTX_ALL, nullptr, client_.putvoid()),
        "the sound device cannot be used");
  const WAVEFORMATEX format = floatstereo();
  constexpr DWORD flags = AUDCLNT_STREAMFLAGS_EVENTCALLBACK | AUDCLNT_STREAMFLAGS_AUTOCONVERTPCM |
                          AUDCLNT_STREAMFLAGS_SRC_DEFAULT_QUALITY;
  check(client_->Initialize(AUDCLNT_SHAREMODE_SHARED, flags, buffertime, 0, &format, nullptr),
        "the sound device refuses the game's sound");
  wanted_.reset(CreateEventW(nullptr, FALSE, FALSE, nullptr));
  check(client_->SetEventHandle(wanted_.get()), "the sound device cannot call");
  check(client_->GetBufferSize(&frames_), "the sound device has no buffer");
  check(client_->GetService(__uuidof(IAudioRenderClient), renderer_.putvoid()),
        "the sound device cannot be written to");
}

void WasapiDevice::open() {
  try {
    const ComPtr<IMMDevice> device = defaultdevice();
    id_ = idof(*device.get());
    prepare(*device.get());
    failed_ = ending_ = false;
    if (!fill()) throw PlatformError("the sound device takes no sound");
    check(client_->Start(), "the sound device does not start");
    player_ = std::thread([this] { play(); });
  } catch (...) {
    end();
    throw;
  }
  feed_.opened();
}

void WasapiDevice::end() {
  ending_ = true;
  if (wanted_) SetEvent(wanted_.get());
  if (player_.joinable()) player_.join();
  if (client_) client_->Stop();
  renderer_.reset();
  client_.reset();
  wanted_.reset();
}

bool WasapiDevice::lost(int patience) {
  if (feed_.quiet(patience) || failed_) return true;
  try {
    const ComPtr<IMMDevice> device = defaultdevice();
    return idof(*device.get()) != id_;
  } catch (const PlatformError&) {
    return false;  // what is being played on may be heard yet
  }
}

void WasapiDevice::play() {
  const ComThread com;
  DWORD task = 0;
  const HANDLE urgent = AvSetMmThreadCharacteristicsW(L"Games", &task);
  while (!ending_) {
    const bool asked = WaitForSingleObject(wanted_.get(), wakeup) == WAIT_OBJECT_0;
    if (asked && !ending_ && !fill()) {
      failed_ = true;
      break;
    }
  }
  if (urgent != nullptr) AvRevertMmThreadCharacteristics(urgent);
}

bool WasapiDevice::fill() noexcept {
  UINT32 waiting = 0;
  if (FAILED(client_->GetCurrentPadding(&waiting))) return false;
  const UINT32 room = frames_ - std::min(waiting, frames_);
  if (room == 0) return true;
  BYTE* samples = nullptr;
  if (FAILED(renderer_->GetBuffer(room, &samples))) return false;
  feed_.fill(reinterpret_cast<float*>(samples), room);
  return SUCCEEDED(renderer_->ReleaseBuffer(room, 0));
}

}  // namespace

std::unique_ptr<OutputDevice> createoutputdevice(std::shared_ptr<Mixer> mixer) {
  return std::make_unique<WasapiDevice>(std::move(mixer));
}

}  // namespace duskmarch
