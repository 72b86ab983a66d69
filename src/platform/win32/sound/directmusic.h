// An MP3 file played by the system itself.
#pragma once

#include <chrono>
#include <filesystem>

#include "platform/desktop.h"
#include "platform/win32/deskthread.h"

namespace duskmarch {

// All talk with the player is on a thread of its own, so that no call waits. What cannot be played
// after all stays silent.
class DirectMusic final : public MusicGraph {
 public:
  // Throws PlatformError when `file` is no MP3. Its end waits for the thread's for `farewell`: not
  // at all in the game, which goes on or ends every thread by force.
  explicit DirectMusic(const std::filesystem::path& file, std::chrono::milliseconds farewell = {});
  ~DirectMusic() override;

  void setvolume(int volume) override;
  void setbalance(int balance) override;
  void setposition(double seconds) override;
  void run() override;

 private:
  struct Orders;
  class Player;

  DeskThread<Orders> thread_;
};

}  // namespace duskmarch
