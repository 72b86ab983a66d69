#include "debuglog.h"

#include <string>

#include "platform/files.h"
#include "values/textfile.h"

namespace duskmarch {

namespace {

bool hasroom(const std::filesystem::path& log, std::size_t more) {
  return FileWriter(log, FileWriter::Start::atend).size() + more <= largesttextfile;
}

}  // namespace

void logline(const std::filesystem::path& folder, std::string_view line) {
  try {
    const std::filesystem::path log = folder / logfile;
    const std::string text = std::string(line) + "\r\n";
    if (!hasroom(log, text.size())) renamefile(log, folder / olderlogfile);
    FileWriter(log, FileWriter::Start::atend).write(text);
  } catch (const FileError&) {
    return;
  }
}

void logerror(const Game& game, std::string_view procedure, std::string_view description) {
  logline(game.filesfolder, "error in " + std::string(procedure) + ": " + std::string(description));
}

}  // namespace duskmarch
