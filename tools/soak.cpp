// A soak as long as one likes, in an empty program folder made for it:
//   soak FOLDER KEYS SEED   plays so many random lines, invariants checked after each, a saved game
//                           written and read back every thousand lines, and tells the slowest one
//   soak --print LINES SEED prints a random script instead
#include "soak.h"

#include <chrono>
#include <fstream>
#include <iostream>
#include <iterator>
#include <memory>
#include <span>

#include "campaign/savegame.h"
#include "invariants.h"

namespace {

using namespace duskmarch;
using Clock = std::chrono::steady_clock;

int print(int lines, std::uint32_t seed) {
  RandomScript script(seed);
  for (; lines > 0; --lines) std::cout << script.line() << '\n';
  return 0;
}

std::string content(const std::filesystem::path& file) {
  std::ifstream stream(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), {}};
}

// A campaign that was saved, loaded and saved again is the same file.
bool survivessaving(Game& game, const std::filesystem::path& folder) {
  savegame(game, "game.sav");
  const std::string saved = content(folder / "game.sav");
  loadgame(game, "game.sav");
  savegame(game, "game.sav");
  return content(folder / "game.sav") == saved;
}

struct Soak {
  std::filesystem::path folder;
  std::uint32_t seed;
  RandomScript script{seed};
  std::unique_ptr<ReplaySession> session = {};
  std::chrono::duration<double, std::milli> slowest{0};

  void start() { session = std::make_unique<ReplaySession>(soakoptions(folder, seed)); }
  // Empty when all is well.
  std::string step(int number) {
    if (!session || session->game.ended) start();
    const std::string line = script.line();
    const Clock::time_point before = Clock::now();
    session->perform(line);
    slowest = std::max(slowest, decltype(slowest)(Clock::now() - before));
    session->replay.transcript.clear();
    if (number % 1000 == 0 && !survivessaving(session->game, folder)) return "the save differs";
    return brokeninvariant(session->game);
  }
};

int soak(const std::filesystem::path& folder, int lines, std::uint32_t seed) {
  Soak soak{.folder = folder, .seed = seed};
  for (int n = 1; n <= lines; ++n) {
    if (const std::string broken = soak.step(n); !broken.empty()) {
      std::cerr << "seed " << seed << ", line " << n << ": " << broken << '\n';
      return 1;
    }
  }
  std::cout << lines << " lines of seed " << seed << ": all invariants held, the slowest line took "
            << soak.slowest.count() << " ms\n";
  return 0;
}

}  // namespace

int main(int count, char** arguments) {
  const std::span words(arguments, static_cast<std::size_t>(count));
  if (count != 4) {
    std::cerr << "usage: soak FOLDER LINES SEED | soak --print LINES SEED\n";
    return 2;
  }
  const int lines = std::stoi(words[2]);
  const auto seed = static_cast<std::uint32_t>(std::stoul(words[3]));
  return words[1] == std::string_view("--print") ? print(lines, seed) : soak(words[1], lines, seed);
}
