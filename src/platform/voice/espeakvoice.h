// The game's own voice: one thread synthesizes what was asked for last.
#pragma once

#include <condition_variable>
#include <deque>
#include <filesystem>
#include <memory>
#include <mutex>
#include <string>
#include <string_view>
#include <thread>
#include <vector>

#include "platform/desktop.h"
#include "platform/voice/espeak.h"
#include "platform/voice/resampler.h"
#include "platform/voice/speechlog.h"
#include "platform/voice/speechstream.h"

namespace duskmarch {

class EspeakVoice final : public Voice {
 public:
  EspeakVoice(std::shared_ptr<SpeechStream> stream, SpeechLog log,
              const std::filesystem::path& data = {});
  ~EspeakVoice() override;

  void setrate(int rate) override;
  void speak(std::string_view text) override;
  void speakafter(std::string_view text) override;
  void hush() override { speak({}); }
  // Both silence the voice, so as not to wait for what it is saying.
  std::vector<std::string> voicenames() override;
  bool setvoice(std::string_view name) override;

  // Whether everything asked for has gone into the stream.
  bool idle() const;

 private:
  struct Utterance {
    std::string text;
    SpeechStream::Turn turn = 0;
    int rate = 0;
    std::string voice;
  };

  void work();
  void say(const Utterance& utterance);
  // Waits for room in the stream; false when the utterance was cut off.
  bool pass(SpeechStream::Turn turn, std::span<const float> samples);

  const std::shared_ptr<SpeechStream> stream_;
  const SpeechLog log_;
  Espeak& espeak_;
  Resampler resampler_;

  mutable std::mutex mutex_;  // for what follows
  std::condition_variable wake_;
  std::deque<Utterance> waiting_;
  SpeechStream::Turn turn_ = 0;
  int rate_;
  std::string voice_;  // its file; empty for the default
  bool saying_ = false;
  bool ending_ = false;

  std::thread worker_;
};

// Words a minute for the rates from 1 to 10; others count as the nearest of these.
int wordsaminute(int rate);

}  // namespace duskmarch
