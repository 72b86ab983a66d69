#include "platform/win32/sound/directmusic.h"

#include <algorithm>
#include <optional>
#include <string>
#include <utility>

#include <control.h>
#include <strmif.h>
#include <uuids.h>

#include "platform/win32/sound/mp3file.h"

namespace duskmarch {

// What is still to be done.
struct DirectMusic::Orders : Desk {
  explicit Orders(std::filesystem::path music) : file(std::move(music)) {}

  const std::filesystem::path file;
  std::optional<int> volume;
  std::optional<int> balance;
  std::optional<double> position;
  bool run = false;

  bool any() const { return ending || volume || balance || position || run; }
};

// The thread's side.
class DirectMusic::Player {
 public:
  explicit Player(const std::filesystem::path& file);
  Player(const Player&) = delete;
  Player& operator=(const Player&) = delete;
  ~Player() { control_->Stop(); }

  void work(Orders& orders);

 private:
  void setposition(double seconds);

  ComPtr<IGraphBuilder> graph_;
  ComPtr<IMediaControl> control_;
  ComPtr<IBasicAudio> audio_;
  ComPtr<IMediaPosition> position_;
};

DirectMusic::Player::Player(const std::filesystem::path& file) {
  check(CoCreateInstance(CLSID_FilterGraph, nullptr, CLSCTX_INPROC_SERVER, IID_IGraphBuilder,
                         graph_.putvoid()),
        "the system plays no music");
  const auto face = [this](const IID& kind, void** object) {
    check(graph_->QueryInterface(kind, object), "the system's music lacks something");
  };
  face(IID_IMediaControl, control_.putvoid());
  face(IID_IBasicAudio, audio_.putvoid());
  face(IID_IMediaPosition, position_.putvoid());
  check(graph_->RenderFile(file.c_str(), nullptr), "the file cannot be played");
  position_->put_Rate(1.0);
}

// What one of these cannot do is no reason not to play.
void DirectMusic::Player::work(Orders& orders) {
  std::unique_lock lock(orders.mutex);
  for (;;) {
    orders.wake.wait(lock, [&] { return orders.any(); });
    if (orders.ending) return;
    const auto volume = std::exchange(orders.volume, {});
    const auto balance = std::exchange(orders.balance, {});
    const auto position = std::exchange(orders.position, {});
    const bool run = std::exchange(orders.run, false);
    lock.unlock();
    if (volume) audio_->put_Volume(*volume);
    if (balance) audio_->put_Balance(*balance);
    if (position) setposition(*position);
    if (run) control_->Run();
    lock.lock();
  }
}

void DirectMusic::Player::setposition(double seconds) {
  REFTIME end = 0;
  if (FAILED(position_->get_Duration(&end))) end = seconds;
  position_->put_CurrentPosition(std::clamp(seconds, 0.0, end));
}

DirectMusic::DirectMusic(const std::filesystem::path& file, std::chrono::milliseconds farewell)
    : thread_((checkmp3(file), std::make_shared<Orders>(file)),
              [](const std::shared_ptr<Orders>& orders) {
                try {
                  Player(orders->file).work(*orders);
                } catch (const PlatformError&) {
                  return;
                }
              },
              farewell) {}

DirectMusic::~DirectMusic() = default;

void DirectMusic::setvolume(int volume) {
  thread_.order([&](Orders& orders) { orders.volume = volume; });
}

void DirectMusic::setbalance(int balance) {
  thread_.order([&](Orders& orders) { orders.balance = balance; });
}

void DirectMusic::setposition(double seconds) {
  thread_.order([&](Orders& orders) { orders.position = seconds; });
}

void DirectMusic::run() {
  thread_.order([&](Orders& orders) { orders.run = true; });
}

}  // namespace duskmarch
