// Voices that begin at their own frame of the mixer's sample clock, for cues and ambience: placed,
// at a pitch of their own, a limited number at once, and faded whenever they are cut off.
#pragma once

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <mutex>
#include <vector>

#include "platform/sound/clip.h"
#include "platform/sound/levels.h"
#include "platform/sound/mailbox.h"

namespace duskmarch {

struct TimedSound {
  std::shared_ptr<const Clip> clip;  // not empty
  std::uint64_t start = 0;           // a frame of the mixer's clock; one that is past means at once
  Levels levels = {};
  int pitch = 0;   // hundredths of a semitone, -2400 to 2400
  int weight = 0;  // of too many at once the lightest go first, of these the oldest
  bool loop = false;
};

// start(), stop(), setlevel() and tidy() come from any thread but the audio thread and return at
// once; mix() and skip() from the audio thread, where they do not wait, allocate or free.
class TimedVoices {
 public:
  // How many may sound at once, and how many frames a voice takes to come and, cut off, to go.
  struct Manner {
    std::size_t atonce;
    unsigned fadein;
    unsigned fadeout;
  };
  explicit TimedVoices(Manner manner) : manner_(manner) {}

  void start(std::vector<TimedSound> sounds);
  // What has not begun never will; what sounds fades.
  void stop();
  // Of all of them together, 1 as they are; what sounds gets there smoothly.
  void setlevel(float level) { level_ = level; }
  // Frees what has been played.
  void tidy();

  // Adds the frames from `now` on to interleaved stereo; `share` lowers them for the time being.
  void mix(float* samples, std::size_t frames, std::uint64_t now, float share) noexcept;
  // Lets frames pass unheard.
  void skip(std::size_t frames, std::uint64_t now) noexcept;

 private:
  struct Voice;
  using Score = std::vector<std::shared_ptr<Voice>>;

  void forgetplayed();
  void cutstopped(const Score& score) noexcept;
  void begindue(const Score& score, std::uint64_t end) noexcept;
  void makeroom(const Score& score, Voice& newcomer) noexcept;
  void mixblock(const Score& score, float* samples, std::size_t frames, std::uint64_t now,
                float target) noexcept;
  void mixvoice(Voice& voice, float* samples, const float* gains, std::size_t frames) noexcept;

  const Manner manner_;
  std::mutex control_;  // never taken by the audio thread
  Score wanted_;        // guarded by control_
  std::uint64_t count_ = 0;
  Mailbox<Score> scores_;
  std::atomic<std::uint64_t> stopped_ = 0;  // voices up to this number are cut off
  std::atomic<float> level_ = 1;
  float heard_ = 1;  // the audio thread's own: the level on its way to the wanted one
};

}  // namespace duskmarch
