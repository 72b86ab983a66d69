#include "platform/sound/mixedcues.h"

#include <algorithm>
#include <utility>

#include "audio/cuetable.h"
#include "platform/sound/wavfile.h"

namespace duskmarch {
namespace {

constexpr int framesamillisecond = mixrate / 1000;
constexpr int loudest = 10;
constexpr int volumestep = 200;  // hundredths of a decibel
constexpr int furthestpitch = 2400;

float levelof(int volume) {
  return volume <= 0 ? 0.0F : gain(volumestep * (std::min(volume, loudest) - loudest));
}

std::uint64_t framesof(int milliseconds) {
  return static_cast<std::uint64_t>(std::max(milliseconds, 0)) * framesamillisecond;
}

using ReadTask = std::packaged_task<std::shared_ptr<const Clip>()>;

ReadTask readingof(std::filesystem::path file) {
  return ReadTask([file = std::move(file)] { return std::make_shared<const Clip>(readwav(file)); });
}

void complain(const std::string& problems) {
  if (!problems.empty()) throw PlatformError(problems);
}

}  // namespace

MixedCues::MixedCues(std::shared_ptr<Mixer> mixer) : mixer_(std::move(mixer)) {}

MixedCues::~MixedCues() {
  mixer_->cues().stop();
  mixer_->ambience().stop();
}

void MixedCues::playcues(std::span<const Cue> cues, const FileOf& fileof) {
  readahead(fileof);
  const std::uint64_t now = mixer_->now();
  std::vector<TimedSound> sounds;
  std::string problems;
  for (const Cue& cue : cues) {
    SharedClip clip = clipof(cue.name, fileof, problems);
    if (!clip) continue;
    sounds.push_back({.clip = std::move(clip),
                      .start = now + framesof(cue.delay),
                      .levels = placed(cue.loudness, cue.pan),
                      .pitch = std::clamp(cue.pitch, -furthestpitch, furthestpitch),
                      .weight = cue.weight});
  }
  if (!sounds.empty()) mixer_->cues().start(std::move(sounds));
  complain(problems);
}

void MixedCues::stopcues() {
  mixer_->cues().stop();
}

void MixedCues::setambience(std::string_view name, int loudness, const FileOf& fileof) {
  if (name == ambience_) return;
  ambience_ = name;
  mixer_->ambience().stop();
  readahead(fileof);
  if (name.empty()) return;
  std::string problems;
  if (SharedClip clip = clipof(name, fileof, problems)) {
    mixer_->ambience().start({{.clip = std::move(clip),
                               .start = mixer_->now(),
                               .levels = placed(loudness, 0),
                               .loop = true}});
  }
  complain(problems);
}

void MixedCues::setcuevolume(int volume) {
  mixer_->cues().setlevel(levelof(volume));
}

void MixedCues::setambiencevolume(int volume) {
  mixer_->ambience().setlevel(levelof(volume));
}

void MixedCues::readahead(const FileOf& fileof) {
  if (reader_.joinable()) return;
  std::vector<ReadTask> tasks;
  for (const CueRow& cue : cuetable()) {
    tasks.push_back(readingof(fileof(cue.name)));
    clips_[std::string(cue.name)] = {.clip = tasks.back().get_future().share()};
  }
  reader_ = std::jthread([tasks = std::move(tasks)](const std::stop_token& ending) mutable {
    for (ReadTask& task : tasks) {
      if (ending.stop_requested()) return;
      task();
    }
  });
}

MixedCues::SharedClip MixedCues::clipof(std::string_view name, const FileOf& fileof,
                                        std::string& problems) {
  auto known = clips_.find(name);
  if (known == clips_.end()) {
    ReadTask task = readingof(fileof(name));
    task();
    known = clips_.emplace(name, Reading{.clip = task.get_future().share()}).first;
  }
  Reading& reading = known->second;
  try {
    return reading.clip.get();
  } catch (const std::exception& error) {
    if (std::exchange(reading.reported, true)) return nullptr;
    if (!problems.empty()) problems += "; ";
    problems += std::string(name) + ": " + error.what();
    return nullptr;
  }
}

}  // namespace duskmarch
