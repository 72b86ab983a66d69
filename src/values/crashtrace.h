// All keys and answers of a run, kept as a script that duskmarch-replay accepts, in memory that a
// handler of a fatal signal may still read.
#pragma once

#include <array>
#include <atomic>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <new>
#include <optional>
#include <string>
#include <string_view>

namespace duskmarch {

inline constexpr std::string_view crashfile = "crash.txt";

class CrashTrace {
 public:
  CrashTrace() = default;
  ~CrashTrace();
  CrashTrace(const CrashTrace&) = delete;
  CrashTrace& operator=(const CrashTrace&) = delete;

  // The first lines of the script: the version as a comment, and the seed. Called once.
  void begin(std::string_view version, std::uint32_t seed);
  // A line that a replay passes over.
  void note(std::string_view words);
  void key(int keycode, int shift);
  // What was typed into the box that the last key opened (nothing typed: it was cancelled). A
  // script queues an answer ahead of its key, so that is where it goes.
  void answer(std::string_view typed);

  // What a file held when it was loaded, nothing if it was not there; and what was saved in it. A
  // replay saves the same itself, but has to be given what was there before: that is kept.
  void loaded(std::string_view name, std::optional<std::string_view> text);
  void saved(std::string_view name, std::string_view text);

  // Calls `write(data, size)` for the parts of the script in their order. Allocates nothing.
  template <typename Write>
  void writeto(Write write) const {
    if (forgotten_.load()) write(memoryended.data(), memoryended.size());
    for (const Chunk* chunk = oldest_.load(); chunk != nullptr; chunk = chunk->next.load()) {
      write(chunk->text.data(), chunk->size.load());
    }
  }
  // Calls `write(name, data, size)` for each file that a replay has to be given, with the name that
  // the script calls it by, ended by a 0. Allocates nothing.
  template <typename Write>
  void writefilesto(Write write) const {
    for (std::size_t n = 0; n < filecount_.load(); ++n) {
      const File& file = files_[n];
      if (file.wanted) write(file.keptas.c_str(), file.first.data(), file.first.size());
    }
  }

  // Where memory ends, the oldest part is forgotten each time the newest needs room. For tests:
  // behaves as if no more than so many parts could be had.
  void limitparts(std::size_t most) { mostchunks_ = most; }
  static constexpr std::size_t partsize = 1U << 14;

 private:
  struct Chunk {
    std::array<char, partsize> text;
    std::atomic<std::size_t> size = 0;
    std::atomic<Chunk*> next = nullptr;
  };
  struct File {
    std::string name, keptas, first;
    bool wanted = false;
    std::size_t now = 0;  // a digest of what it holds
  };
  // A comment up to the end of what may be the rest of a line.
  static constexpr std::string_view memoryended =
      "# There was no memory for all keys; these are the newest, and replay from nowhere: ";
  static constexpr std::size_t longestkey = 32;

  static Chunk* newchunk() noexcept { return new (std::nothrow) Chunk; }
  std::size_t room() const { return partsize - newest_->size.load(); }
  void grow() noexcept;
  void append(std::string_view text);
  File* known(std::string_view name);
  File* newfile(std::string_view name);

  // Two from the start, so that a full one is left when the older is forgotten.
  std::unique_ptr<Chunk> spare_ = std::make_unique<Chunk>();
  std::atomic<Chunk*> oldest_ = new Chunk;
  Chunk* newest_ = oldest_;
  std::size_t chunks_ = 1;
  std::size_t mostchunks_ = ~std::size_t{0};
  std::atomic<bool> forgotten_ = false;
  std::string lastkey_;  // its line, while nothing follows it
  std::array<File, 4> files_;
  std::atomic<std::size_t> filecount_ = 0;
};

}  // namespace duskmarch
