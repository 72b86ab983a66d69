#include "platform/win32/sound/mp3file.h"

#include <array>
#include <cstddef>
#include <fstream>
#include <optional>
#include <vector>

#include "platform/desktop.h"

namespace duskmarch {
namespace {

using Bytes = std::vector<unsigned char>;

// How far into a file the first frame may begin, words about the music not counted.
constexpr std::size_t searched = 1U << 16;
constexpr std::size_t headersize = 4;

struct Frame {
  std::size_t size = 0;
  unsigned kind = 0;  // what is the same in all frames of a file
};

// In kilobits a second, and hertz.
constexpr std::array<unsigned, 15> bitrates = {0,   32,  40,  48,  56,  64,  80, 96,
                                               112, 128, 160, 192, 224, 256, 320};
constexpr std::array<unsigned, 15> lowbitrates = {0,  8,  16, 24,  32,  40,  48, 56,
                                                  64, 80, 96, 112, 128, 144, 160};
constexpr std::array<unsigned, 3> samplerates = {44100, 48000, 32000};

std::optional<Frame> frameat(const Bytes& bytes, std::size_t at) {
  if (at + headersize > bytes.size()) return std::nullopt;
  const unsigned version = bytes[at + 1] >> 3U & 3U;  // 3, 2 and 0: 1, 2 and 2.5
  const unsigned layer = bytes[at + 1] >> 1U & 3U;
  const unsigned bitrate = bytes[at + 2] >> 4U;
  const unsigned rate = bytes[at + 2] >> 2U & 3U;
  const bool begins = bytes[at] == 0xFF && bytes[at + 1] >> 5U == 7 && version != 1 && layer == 1;
  if (!begins || bitrate == 0 || bitrate >= bitrates.size() || rate >= samplerates.size()) {
    return std::nullopt;
  }
  const unsigned kilobits = version == 3 ? bitrates.at(bitrate) : lowbitrates.at(bitrate);
  const unsigned hertz = samplerates.at(rate) >> (version == 3 ? 0U : version == 2 ? 1U : 2U);
  const unsigned padding = bytes[at + 2] >> 1U & 1U;
  return Frame{(version == 3 ? 144U : 72U) * kilobits * 1000 / hertz + padding,
               version << 2U | rate};
}

// Two frames of one kind in a row are no chance.
bool musicat(const Bytes& bytes, std::size_t at) {
  const auto first = frameat(bytes, at);
  if (!first) return false;
  const auto second = frameat(bytes, at + first->size);
  return second && second->kind == first->kind;
}

// The size of the words about the music that may come before it.
std::streamoff tagsize(std::istream& file) {
  std::array<char, 10> head{};
  file.read(head.data(), head.size());
  if (file.gcount() != head.size() || head[0] != 'I' || head[1] != 'D' || head[2] != '3') return 0;
  std::streamoff size = 0;
  for (std::size_t n = 6; n < head.size(); ++n) size = size << 7U | (head.at(n) & 0x7F);
  const bool footer = (head[5] & 0x10) != 0;
  return size + static_cast<std::streamoff>(head.size()) * (footer ? 2 : 1);
}

}  // namespace

void checkmp3(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  if (!file) throw PlatformError("it cannot be opened");
  const std::streamoff start = tagsize(file);
  file.clear();
  file.seekg(start);
  Bytes bytes(searched + (searched >> 4U));  // with room for the frames of the last place
  file.read(reinterpret_cast<char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
  bytes.resize(static_cast<std::size_t>(file.gcount()));
  for (std::size_t at = 0; at < searched; ++at) {
    if (musicat(bytes, at)) return;
  }
  throw PlatformError("not an MP3 file");
}

}  // namespace duskmarch
