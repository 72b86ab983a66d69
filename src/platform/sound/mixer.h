// Adds up everything that sounds: the numbered slots for effects, any number of sources, such as
// the voice and the music, and beside them the cues and the ambience.
#pragma once

#include <array>
#include <atomic>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <mutex>
#include <vector>

#include "platform/desktop.h"
#include "platform/sound/audiosource.h"
#include "platform/sound/clip.h"
#include "platform/sound/levels.h"
#include "platform/sound/mailbox.h"
#include "platform/sound/timedvoices.h"

namespace duskmarch {

// Every call but render() and skip() comes from any thread, returns at once whatever the device
// does, and throws PlatformError for a slot that does not exist.
class Mixer {
 public:
  static constexpr int slotcount = soundbuffercount;

  // `clip`, which must not be empty, replaces what the slot holds: stopped, at full volume,
  // centred.
  void load(int slot, std::shared_ptr<const Clip> clip);
  // Hundredths of a decibel; a pan attenuates the side away from it.
  void setvolume(int slot, int volume);
  void setpan(int slot, int pan);
  // From the start. Nothing for a slot that was never loaded.
  void play(int slot, bool loop);

  // The source is heard from the next rendered block on, until it is removed. The mixer lets go of
  // it some time after that, never on the audio thread.
  void addsource(std::shared_ptr<AudioSource> source);
  void removesource(const AudioSource& source);

  // Sixteen at once; cut off, they fade within 20 milliseconds. They are lowered while anything
  // speaks.
  TimedVoices& cues() { return cues_; }
  // One loop, or two while one takes the other's place within half a second.
  TimedVoices& ambience() { return ambience_; }
  // The sample clock: the frame at which the next block begins.
  std::uint64_t now() const { return clock_; }
  // How often a device has taken the place of another. A voice that speaks through the system may
  // have to be made again then.
  unsigned newdevices() const noexcept { return newdevices_; }
  void devicereplaced() noexcept { ++newdevices_; }
  // Whether a voice speaks that is not among the sources. The sources tell it themselves.
  void setspeaking(bool speaking) { speaking_ = speaking; }

  // Frees what the audio thread no longer needs. Other calls do so too; this is for quiet times.
  void tidy();

  // The next `frames` frames of interleaved stereo, each sample from -1 to 1. It does not wait,
  // allocate or free. One thread at a time, like skip().
  void render(float* samples, std::size_t frames) noexcept;
  // Lets `frames` frames of the effects, cues and ambience pass unheard; sources stand still.
  void skip(std::size_t frames) noexcept;

 private:
  struct Order {
    std::shared_ptr<const Clip> clip;
    int volume = 0;
    int pan = 0;
    Levels levels;
    bool sounding = false;
    bool loop = false;
    unsigned cue = 0;  // changes when the sound is to begin anew or to stop
  };
  struct Slot {
    Order wanted;  // guarded by control_
    Mailbox<Order> orders;
    // The rest is the audio thread's own.
    unsigned cue = 0;
    std::size_t position = 0;  // in frames
    bool playing = false;

    // What is playing, or null; good until the next call.
    const Order* heard() noexcept;
    void advance(const Order& order, std::size_t frames) noexcept;
    void mix(float* samples, std::size_t frames) noexcept;
    void skip(std::size_t frames) noexcept;
  };
  using Sources = std::vector<std::shared_ptr<AudioSource>>;

  // Whether anything spoke.
  bool mixsources(float* samples, std::size_t frames) noexcept;
  // Changes what is wanted of a slot and tells the audio thread.
  template <class Change>
  void order(int slot, Change change);

  std::mutex control_;  // never taken by the audio thread
  std::array<Slot, slotcount> slots_;
  Sources sources_;  // guarded by control_
  Mailbox<Sources> sourcelists_;
  std::atomic<std::uint64_t> clock_ = 0;
  std::atomic<bool> speaking_ = false;
  std::atomic<unsigned> newdevices_ = 0;
  TimedVoices cues_{{.atonce = 16, .fadein = 0, .fadeout = mixrate / 50}};
  TimedVoices ambience_{{.atonce = 4, .fadein = mixrate / 2, .fadeout = mixrate / 2}};
};

}  // namespace duskmarch
