// Mode 3 that never falls silent for long: where its engine is missing, or away for more than a
// moment, the game's own voice says the text.
#pragma once

#include <chrono>
#include <condition_variable>
#include <functional>
#include <memory>
#include <mutex>
#include <string_view>
#include <thread>

#include "platform/desktop.h"
#include "platform/voice/losablespeech.h"
#include "platform/voice/speechlog.h"

namespace duskmarch {

class SteadySpeech final : public JawsApi {
 public:
  // Returns at once; throws PlatformError while there is no such engine.
  using Make = std::function<std::unique_ptr<LosableSpeech>()>;

  // `make` is called now and, while it fails, for each later text. `ownvoice` is called from any
  // thread; null where there is none: an engine that is away keeps its texts then, and goes on
  // trying. It is away when it has got nowhere for `patience`.
  SteadySpeech(Make make, std::shared_ptr<Voice> ownvoice, SpeechLog log,
               std::chrono::milliseconds patience = std::chrono::seconds(1));
  ~SteadySpeech() override;

  // Throws PlatformError when neither the engine nor the own voice can say it.
  void saystring(std::string_view text) override;
  void interrupt() override;
  // Whether the engine is there, or could be made now, and is not known to be away.
  bool there() override;

 private:
  bool made();
  bool away();
  void sayinstead(std::string_view text);
  void takeover();
  void watch();

  const Make make_;
  const std::shared_ptr<Voice> ownvoice_;
  const SpeechLog log_;
  const std::chrono::milliseconds patience_;

  std::mutex mutex_;  // for what follows
  std::condition_variable wake_;
  std::unique_ptr<LosableSpeech> engine_;
  bool watching_ = false;  // the own voice may have to say what the engine was given
  bool told_ = false;      // the player knows that it is away
  bool instead_ = false;   // the own voice may be speaking
  bool ending_ = false;

  std::thread watcher_;
};

}  // namespace duskmarch
