// Plays music as the game does, for a test that listens. Reads commands from standard input, a line
// each, and answers each with a line: `load FILE`, `volume N`, `balance N`, `position SECONDS`,
// `run`, `end`. "no" for a file that is refused.
#include <chrono>
#include <cstdlib>
#include <iostream>
#include <memory>
#include <string>

#include <fcntl.h>
#include <io.h>

#include "platform/win32/sound/directmusic.h"
#include "platform/win32/text.h"

namespace {

// Wine falls over a driver's thread that a program leaves behind at its end.
constexpr std::chrono::seconds farewell(20);

std::unique_ptr<duskmarch::MusicGraph> music;

bool perform(const std::string& command, const std::string& value) {
  if (command == "load") {
    music.reset();
    music = std::make_unique<duskmarch::DirectMusic>(duskmarch::utf16(value), farewell);
  }
  if (!music) return false;
  if (command == "volume") music->setvolume(std::atoi(value.c_str()));
  if (command == "balance") music->setbalance(std::atoi(value.c_str()));
  if (command == "position") music->setposition(std::atof(value.c_str()));
  if (command == "run") music->run();
  if (command == "end") music.reset();
  return true;
}

}  // namespace

int main() {
  _setmode(_fileno(stdin), _O_BINARY);
  _setmode(_fileno(stdout), _O_BINARY);
  std::string line;
  while (std::getline(std::cin, line)) {
    const std::size_t space = std::min(line.find(' '), line.size());
    bool done = false;
    try {
      done = perform(line.substr(0, space), line.substr(std::min(space + 1, line.size())));
    } catch (const duskmarch::PlatformError&) {
      done = false;
    }
    std::cout << (done ? "yes" : "no") << std::endl;
  }
  music.reset();  // while the system's objects are still there
}
