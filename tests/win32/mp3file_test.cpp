#include "platform/win32/sound/mp3file.h"

#include <fstream>
#include <random>
#include <string>

#include <gtest/gtest.h>

#include "platform/desktop.h"

namespace duskmarch {

namespace {

std::string frame(const std::string& head, std::size_t size) {
  return head + std::string(size - head.size(), '\0');
}

std::string noise(std::size_t size) {
  std::mt19937 random(7);
  std::string bytes(size, '\0');
  for (char& byte : bytes) byte = static_cast<char>(random());
  return bytes;
}

TEST(Mp3Files, MusicIsToldFromWhatIsNone) {
  // Sizes by the standard: 144 * 128000 / 44100, with and without a byte more; 72 * 64000 / 22050.
  const std::string loud = frame("\xFF\xFB\x90", 417);
  const std::string padded = frame("\xFF\xFB\x92", 418);
  const std::string low = frame("\xFF\xF3\x80", 208);
  const std::string layer2 = frame("\xFF\xFD\x90", 417);
  const std::string tag = std::string("ID3\x04\0\0\0\x0A\x0A\x0A", 10);  // of 10 * 128 * 128 + ...
  const std::string words((10 * 128 + 10) * 128 + 10, 'w');
  struct Row {
    const char* what;
    std::string bytes;
    bool music;
  };
  const Row rows[] = {{"music", loud + padded + loud, true},
                      {"low", low + low, true},
                      {"junk first", noise(1000) + padded + loud, true},
                      {"words first", tag + words + loud + loud, true},
                      {"words alone", tag + words, false},
                      {"empty", "", false},
                      {"noise", noise(200000), false},
                      {"one frame", loud, false},
                      {"another layer", layer2 + layer2, false},
                      {"a gap", loud + "x" + loud, false}};
  const std::filesystem::path file = std::filesystem::temp_directory_path() / "duskmarch.mp3";
  for (const Row& row : rows) {
    std::ofstream(file, std::ios::binary) << row.bytes;
    if (row.music) {
      EXPECT_NO_THROW(checkmp3(file)) << row.what;
    } else {
      EXPECT_THROW(checkmp3(file), PlatformError) << row.what;
    }
  }
  std::filesystem::remove(file);
  EXPECT_THROW(checkmp3(file), PlatformError);
}

}  // namespace

}  // namespace duskmarch
