// Where the game finds what came with it, where it keeps files of its own, and that no two games
// keep theirs in the same folder.
#pragma once

#include <cstdint>
#include <filesystem>

namespace duskmarch {

class GameFolders {
 public:
  // The game keeps its files in `program`, the program's folder, where that can be written; else in
  // the folder for it among the player's data, which is made if need be. Where that cannot be
  // written either it is the program's again, and nothing is kept.
  explicit GameFolders(std::filesystem::path program);
  ~GameFolders();
  GameFolders(const GameFolders&) = delete;
  GameFolders& operator=(const GameFolders&) = delete;

  const std::filesystem::path& program() const { return program_; }
  const std::filesystem::path& files() const { return files_; }
  // Another game that runs keeps its files there. Once it has ended, however it did, none does.
  bool inuse() const { return inuse_; }

  // What each system does in its own way: whether files can be made in `folder`, and the game's
  // folder among the player's data, which need not be there; empty for a player who has none.
  static bool canwrite(const std::filesystem::path& folder);
  static std::filesystem::path datafolder();

 private:
  void lock();

  std::filesystem::path program_;
  std::filesystem::path files_;
  bool inuse_ = false;
  std::intptr_t lock_ = -1;  // the system's own
};

}  // namespace duskmarch
