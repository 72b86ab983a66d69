// The files of the cues and loops: their form, their loudness, and that each can be told from all
// others.
#include <algorithm>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <set>

#include <gtest/gtest.h>

#include "audio/cuetable.h"
#include "platform/sound/wavfile.h"
#include "soundlikeness.h"

namespace duskmarch {
namespace {

// Two sounds nearer than this, in decibels, are taken for one another.
constexpr double clearly = 7;

std::filesystem::path whole(const std::string& file) {
  return SOURCE_FOLDER + file;
}

template <class Row>
Samples soundof(const Row& row) {
  return readwav(whole(fileof(row))).samples;
}

float highest(const Samples& sound) {
  return std::abs(*std::ranges::max_element(sound, {}, [](float s) { return std::abs(s); }));
}

std::string header(const std::string& file) {
  std::ifstream stream(whole(file), std::ios::binary);
  std::string bytes(44, '\0');
  stream.read(bytes.data(), 44);
  return bytes;
}

void expectplain(const std::string& file) {
  using namespace std::string_literals;
  // One channel, 48000 and 96000 a second, 2 bytes, 16 bits; nothing but samples after it.
  EXPECT_EQ(header(file).substr(8, 32),
            "WAVEfmt \x10\0\0\0\1\0\1\0\x80\xBB\0\0\0\x77\1\0\2\0\x10\0data"s)
      << file;
}

std::size_t firstheard(const Samples& sound) {
  const float limit = highest(sound) / 100;
  const auto heard = std::ranges::find_if(sound, [&](float s) { return std::abs(s) > limit; });
  return static_cast<std::size_t>(heard - sound.begin());
}

TEST(CueFiles, EachIsShortWholeAndHeardAtOnce) {
  for (const CueRow& cue : cuetable()) {
    expectplain(fileof(cue));
    const Samples sound = soundof(cue);
    EXPECT_LE(sound.size(), 48000U) << cue.name;
    EXPECT_LT(firstheard(sound), 240U) << cue.name;  // five milliseconds
    EXPECT_LT(highest(sound), 0.96) << cue.name;
    EXPECT_NEAR(sound.front(), 0, 0.001) << cue.name;
    EXPECT_NEAR(sound.back(), 0, 0.001) << cue.name;
  }
}

TEST(CueFiles, ThoseOfAKindAreEquallyLoud) {
  std::map<CueKind, std::pair<double, double>> range;
  for (const CueRow& cue : cuetable()) {
    const double loudness = loudestmoment(soundof(cue));
    const auto [place, fresh] = range.try_emplace(cue.kind, loudness, loudness);
    auto& [least, most] = place->second;
    least = std::min(least, loudness);
    most = std::max(most, loudness);
    EXPECT_LE(most - least, 3) << cue.name;
  }
  EXPECT_LT(range[CueKind::fight].second, -16);  // speech reaches that
  EXPECT_LT(range[CueKind::map].second, range[CueKind::fight].first);
}

TEST(CueFiles, EveryFileHasItsRow) {
  std::set<std::string> rows, files;
  for (const CueRow& cue : cuetable()) rows.insert(fileof(cue));
  for (const AmbienceRow& ambience : ambiencetable()) rows.insert(fileof(ambience));
  for (const std::string folder : {"/sounds/cues", "/sounds/ambience"}) {
    for (const auto& file : std::filesystem::directory_iterator(whole(folder))) {
      files.insert(folder + "/" + file.path().filename().string());
    }
  }
  EXPECT_EQ(rows, files);
}

TEST(CueFiles, AnyTwoClearlyDiffer) {
  std::vector<Picture> pictures;
  for (const CueRow& cue : cuetable()) pictures.push_back(picture(soundof(cue)));
  for (std::size_t one = 0; one < pictures.size(); ++one) {
    for (std::size_t other = one + 1; other < pictures.size(); ++other) {
      EXPECT_GE(distance(pictures[one], pictures[other]), clearly)
          << cuetable()[one].name << " and " << cuetable()[other].name;
    }
  }
}

// How much more the sound bends between its end and its start than anywhere in the 20 milliseconds
// on either side; more than 1 can be heard as a click.
double seam(const Samples& loop) {
  constexpr std::size_t around = 960;
  Samples part(loop.end() - around, loop.end());
  part.insert(part.end(), loop.begin(), loop.begin() + around);
  double joint = 0, elsewhere = 0;
  for (std::size_t n = 1; n + 1 < part.size(); ++n) {
    const double bend = std::abs(part[n - 1] - 2 * part[n] + part[n + 1]);
    double& most = n == around - 1 || n == around ? joint : elsewhere;
    most = std::max(most, bend);
  }
  return joint / elsewhere;
}

// The levels of every tenth of a second, in decibels, round the loop.
std::vector<double> levels(const Samples& loop) {
  std::vector<double> result;
  for (std::size_t n = 2400; n < loop.size(); n += 4800) {  // the last one goes round
    double sum = 0;
    for (std::size_t k = n; k < n + 4800; ++k) {
      const double sample = loop[k % loop.size()];
      sum += sample * sample;
    }
    result.push_back(10 * std::log10(sum / 4800 + 1e-12));
  }
  return result;
}

TEST(AmbienceFiles, LoopsAreSeamlessAndEquallyLoud) {
  double least = 0, most = -100;
  for (const AmbienceRow& ambience : ambiencetable()) {
    expectplain(fileof(ambience));
    const Samples loop = soundof(ambience);
    EXPECT_GE(loop.size(), 10U * 48000) << ambience.name;
    EXPECT_LE(loop.size(), 12U * 48000) << ambience.name;
    EXPECT_LT(highest(loop), 0.96) << ambience.name;
    EXPECT_LE(seam(loop), 1) << ambience.name;
    const auto parts = levels(loop);
    EXPECT_GE(parts.back(), *std::min_element(parts.begin(), parts.end() - 1)) << ambience.name;
    double sum = 0;
    for (const float sample : weighted(loop)) sum += sample * sample;
    const double loudness = 10 * std::log10(sum / static_cast<double>(loop.size()));
    least = std::min(least, loudness);
    most = std::max(most, loudness);
    EXPECT_LT(loudestmoment(loop), loudness + 8) << ambience.name;  // nothing startles
  }
  EXPECT_LE(most - least, 3);
}

}  // namespace
}  // namespace duskmarch
