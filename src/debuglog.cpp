#include "debuglog.h"

#include <fstream>
#include <string>

namespace duskmarch {

void logline(const std::filesystem::path& programfolder, std::string_view line) {
  std::ofstream log(programfolder / logfile, std::ios::app | std::ios::binary);
  log << line << "\r\n";
}

void logerror(const Game& game, std::string_view procedure, std::string_view description) {
  logline(game.programfolder,
          "error in " + std::string(procedure) + ": " + std::string(description));
}

}  // namespace duskmarch
