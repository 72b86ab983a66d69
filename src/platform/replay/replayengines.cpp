#include "platform/replay/replayengines.h"

#include <algorithm>
#include <charconv>
#include <fstream>

#include "values/filelookup.h"

namespace duskmarch {

namespace {

// The first bytes of a file; fewer when it is shorter.
std::string beginning(const std::filesystem::path& file, std::size_t size) {
  std::filebuf stream;
  stream.pubsetbuf(nullptr, 0);  // a page of buffer would cost more than the few bytes
  if (stream.open(file, std::ios::in | std::ios::binary) == nullptr) {
    throw PlatformError("it cannot be opened");
  }
  std::string bytes(size, '\0');
  bytes.resize(
      static_cast<std::size_t>(stream.sgetn(bytes.data(), static_cast<std::streamsize>(size))));
  return bytes;
}

// Every end of turn has many of these: each is put together before it goes into the transcript.
class CueLine {
 public:
  void add(std::string_view word) {
    end_ = std::ranges::copy(word.substr(0, longestword), end_).out;
  }
  void addfield(int number) {
    *end_++ = '\t';
    end_ = std::to_chars(end_, end_ + longestnumber, number).ptr;
  }
  std::string_view text() const { return {bytes_.data(), end_}; }

 private:
  static constexpr std::size_t longestword = 40;
  static constexpr std::size_t longestnumber = 11;
  std::array<char, 2 * longestword + 3 * (1 + longestnumber)> bytes_;
  char* end_ = bytes_.data();
};

}  // namespace

bool ReplayVoice::setvoice(std::string_view name) {
  const std::vector<std::string> names = voicenames();
  if (name.empty()) name = names.front();
  if (std::ranges::find(names, name) == names.end()) return false;
  transcript_.event("voicename", name);
  return true;
}

bool ReplaySound::isgood(const std::filesystem::path& file) {
  const std::optional<FileStamp> stamp = stampof(file);
  if (!stamp) throw PlatformError("it cannot be opened");
  const auto known = looks_.find(file);
  if (known != looks_.end() && known->second.stamp == *stamp) return known->second.good;
  const std::string bytes = beginning(file, 12);
  const bool good = bytes.size() == 12 && bytes.starts_with("RIFF") && bytes.ends_with("WAVE");
  looks_.insert_or_assign(file, Look{.stamp = *stamp, .good = good});
  return good;
}

void ReplaySound::load(int buffer, std::string_view name, const std::filesystem::path& file) {
  if (!isgood(file)) throw PlatformError("it is no WAV file: " + std::string(name));
  at(buffer) = {.name = tidyname(name), .volume = 0, .pan = 0};
}

void ReplaySound::play(int buffer, bool loop) {
  const Buffer& held = at(buffer);
  if (held.name.empty()) return;
  transcript_.event("play", buffer, held.volume, held.pan, loop ? 1 : 0, held.name);
}

void ReplayCues::playcues(std::span<const Cue> cues, const FileOf&) {
  for (const Cue& cue : cues) {
    CueLine line;
    line.add("cue\t");
    line.add(cue.name);
    for (const int number : {cue.pan, cue.pitch, cue.delay}) line.addfield(number);
    transcript_.line(line.text());
  }
}

void ReplayCues::setambience(std::string_view name, int, const FileOf&) {
  if (name == ambience_) return;
  ambience_ = name;
  transcript_.event("ambience", name);
}

ReplayMusic::ReplayMusic(const std::filesystem::path& file) {
  const std::string bytes = beginning(file, 3);
  const bool frame = bytes.size() >= 2 && bytes[0] == '\xFF' && (bytes[1] & '\xE0') == '\xE0';
  if (!frame && bytes != "ID3") throw PlatformError("it is no MP3 file");
}

}  // namespace duskmarch
