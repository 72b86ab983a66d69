// The stand-ins for the speech and sound engines.
#pragma once

#include <array>
#include <map>
#include <string>

#include "game.h"
#include "platform/desktop.h"
#include "platform/files.h"
#include "platform/replay/transcript.h"

namespace duskmarch {

class ReplayVoice final : public Voice {
 public:
  explicit ReplayVoice(Transcript& transcript) : transcript_(transcript) {}
  void setrate(int rate) override { transcript_.event("rate", rate); }
  void speak(std::string_view text) override { transcript_.event("voice", text); }
  void speakafter(std::string_view text) override { transcript_.event("voice", text); }
  void hush() override {}
  std::vector<std::string> voicenames() override { return {"First", "Second"}; }
  bool setvoice(std::string_view name) override;

 private:
  Transcript& transcript_;
};

class ReplayJaws final : public JawsApi {
 public:
  explicit ReplayJaws(Transcript& transcript) : transcript_(transcript) {}
  void saystring(std::string_view text) override { transcript_.event("jaws", text); }
  void interrupt() override {}

 private:
  Transcript& transcript_;
};

// Cues and ambience are lines, nothing else: no file of them is read.
class ReplayCues final : public CueDevice {
 public:
  explicit ReplayCues(Transcript& transcript) : transcript_(transcript) {}
  void playcues(std::span<const Cue> cues, const FileOf&) override;
  void stopcues() override {}
  void setambience(std::string_view name, int loudness, const FileOf&) override;
  void setcuevolume(int) override {}
  void setambiencevolume(int) override {}

 private:
  Transcript& transcript_;
  std::string ambience_;
};

// A sound is good when its file begins as a RIFF WAVE file.
class ReplaySound final : public SoundDevice {
 public:
  explicit ReplaySound(Transcript& transcript) : transcript_(transcript), cues_(transcript) {}
  void load(int buffer, std::string_view name, const std::filesystem::path& file) override;
  void setvolume(int buffer, int volume) override { at(buffer).volume = volume; }
  void setpan(int buffer, int pan) override { at(buffer).pan = pan; }
  void play(int buffer, bool loop) override;
  CueDevice& cues() override { return cues_; }

 private:
  struct Buffer {
    std::string name;
    int volume = 0;
    int pan = 0;
  };
  struct Look {
    FileStamp stamp;
    bool good = false;
  };
  // Reads a file again when its size or time has changed.
  bool isgood(const std::filesystem::path& file);
  Buffer& at(int buffer) { return buffers_[static_cast<std::size_t>(buffer)]; }

  Transcript& transcript_;
  std::array<Buffer, soundbuffercount> buffers_;
  std::map<std::filesystem::path, Look> looks_;
  ReplayCues cues_;
};

// Music plays unheard; a file is good when it begins as an MP3 stream or with an ID3 tag.
class ReplayMusic final : public MusicGraph {
 public:
  explicit ReplayMusic(const std::filesystem::path& file);
  void setvolume(int) override {}
  void setbalance(int) override {}
  void setposition(double) override {}
  void run() override {}
};

}  // namespace duskmarch
