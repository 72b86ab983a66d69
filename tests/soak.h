// Random play over all screens: any key, any answer, saves, loads and seeds, in any order.
#pragma once

#include <array>
#include <cstdint>
#include <random>
#include <string>

#include "platform/replay/replaysession.h"

namespace duskmarch {

// Writes script lines, repeatable by its seed. Keys that lead somewhere come more often than
// others, so that missions are entered, fought and ended.
class RandomScript {
 public:
  explicit RandomScript(std::uint32_t seed) : random_(seed) {}

  std::string line() {
    switch (draw(50)) {
      case 0: return "answer " + std::string(pick(names));
      case 1: return "cancel";
      case 2: return draw(4) == 0 ? "load" : "key 120";
      case 3: return draw(8) == 0 ? "save" : "draw";
      case 4: return draw(4) == 0 ? "seed " + std::to_string(draw(1000)) : "key 69 1";
      case 5: return "key " + std::to_string(draw(256)) + " " + std::to_string(draw(8));
      case 6: return draw(20) == 0 ? "key 27 1" : "key 27";
      default: return draw(3) == 0 ? "answer " + std::string(pick(directions)) : likelykey();
    }
  }

 private:
  static constexpr std::array<std::string_view, 5> directions = {"N", "s", "E", "w", "x"};
  static constexpr std::array<std::string_view, 8> names = {
      "Vesper", "vesper", "Élan", "a b", "$B", "[1]", "North]", "\\t\\\\ very long name of a hero"};
  static constexpr std::array<int, 47> likely = {
      13, 13, 13, 13, 40,  40,  40,  38,  37, 39, 27,  32,  78,  77,  86, 69,
      90, 88, 67, 76, 219, 221, 188, 9,   33, 34, 82,  109, 187, 17,  72, 73,
      84, 68, 71, 66, 112, 113, 119, 122, 35, 36, 114, 115, 116, 117, 118};
  static constexpr int deliberate = 4;  // one key in so many is held with Shift

  std::string likelykey() {
    const int shift = draw(deliberate) == 0 ? 1 : 0;
    return "key " + std::to_string(likely[static_cast<std::size_t>(draw(likely.size()))]) + " " +
           std::to_string(shift);
  }
  template <typename List>
  std::string_view pick(const List& list) {
    return list[static_cast<std::size_t>(draw(list.size()))];
  }
  int draw(std::size_t n) { return static_cast<int>(random_() % n); }

  std::mt19937 random_;
};

// Each seed at another desktop: with and without a voice, a speech service and a screen reader.
inline ReplayOptions soakoptions(const std::filesystem::path& folder, std::uint32_t seed) {
  return {.folder = folder,
          .seed = seed,
          .voice = seed % 4 != 0,
          .jaws = seed % 3 != 0,
          .reader = seed % 2 == 0};
}

}  // namespace duskmarch
