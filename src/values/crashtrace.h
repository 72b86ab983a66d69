// The last keys and answers, kept as lines of a script that duskmarch-replay accepts, in memory
// that a handler of a fatal signal may still read.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace duskmarch {

inline constexpr std::string_view crashfile = "crash.txt";

class CrashTrace {
 public:
  static constexpr std::size_t kept = 200;

  // The first lines of the script: the version as a comment, and the seed.
  void begin(std::string_view version, std::uint32_t seed);
  void key(int keycode, int shift);
  // What was typed into the box that the last key opened (nothing typed: it was cancelled). A
  // script queues an answer ahead of its key, so that is where it goes.
  void answer(std::string_view typed);

  // Calls `write(data, size)` for each line, oldest first. Allocates nothing.
  template <typename Write>
  void writeto(Write write) const {
    write(heading_.text.data(), heading_.size);
    for (std::size_t n = count_ < kept ? 0 : count_ - kept; n < count_; ++n) {
      const Line& line = lines_[n % kept];
      write(line.text.data(), line.size);
    }
  }

 private:
  struct Line {
    std::array<char, 256> text{};
    std::size_t size = 0;
    void assign(std::string_view words);
  };

  Line heading_;
  std::array<Line, kept> lines_;
  std::size_t count_ = 0;
};

}  // namespace duskmarch
