// Mode 3's engine and the own voice that stands in for it.
#include "platform/voice/steadyspeech.h"

#include <algorithm>
#include <atomic>

#include <gtest/gtest.h>

#include "fakeservice.h"
#include "patience.h"
#include "platform/voice/engines.h"

namespace duskmarch {
namespace {

using namespace std::chrono_literals;
using Texts = std::vector<std::string>;

// What was said, by whom, in order.
class Record {
 public:
  void add(std::string_view who, std::string_view text) {
    const std::lock_guard guard(mutex_);
    texts_.push_back(std::string(who) + std::string(text));
  }
  Texts taken() {
    const std::lock_guard guard(mutex_);
    return std::exchange(texts_, {});
  }
  Texts texts() {
    const std::lock_guard guard(mutex_);
    return texts_;
  }

 private:
  std::mutex mutex_;
  Texts texts_;
};

class RecordedVoice : public Voice {
 public:
  explicit RecordedVoice(Record& record) : record_(record) {}
  void setrate(int) override {}
  void speak(std::string_view text) override { record_.add("voice at once: ", text); }
  void speakafter(std::string_view text) override { record_.add("voice: ", text); }
  void hush() override { record_.add("voice hushed", ""); }

 private:
  Record& record_;
};

// An engine that does what the test says.
struct Engine {
  std::atomic<bool> exists = true;
  std::atomic<bool> stuck = false;
  std::atomic<bool> lost = false;
};

class RecordedEngine : public LosableSpeech {
 public:
  RecordedEngine(Engine& engine, Record& record) : engine_(engine), record_(record) {}
  void saystring(std::string_view text) override {
    if (engine_.stuck) unsaid_.emplace_back(text);
    if (!engine_.stuck) record_.add("engine: ", text);
  }
  void interrupt() override { record_.add("engine interrupted", ""); }
  std::optional<Clock::time_point> stucksince() override {
    if (!engine_.stuck) return std::nullopt;
    return Clock::now() - 1h;
  }
  Texts giveup() override {
    engine_.lost = true;
    return std::exchange(unsaid_, {});
  }
  bool lost() override { return engine_.lost; }

 private:
  Engine& engine_;
  Record& record_;
  Texts unsaid_;
};

class SteadySpeechTest : public testing::Test {
 protected:
  std::unique_ptr<SteadySpeech> start(std::shared_ptr<Voice> voice) {
    const auto make = [this]() -> std::unique_ptr<LosableSpeech> {
      if (!engine_.exists) throw PlatformError("missing");
      return std::make_unique<RecordedEngine>(engine_, record_);
    };
    const auto log = [](std::string_view line) { ADD_FAILURE() << line; };
    return std::make_unique<SteadySpeech>(make, std::move(voice), log, 1ms);
  }
  std::shared_ptr<Voice> voice() { return std::make_shared<RecordedVoice>(record_); }

  Engine engine_;
  Record record_;
};

TEST_F(SteadySpeechTest, AMissingEngineIsToldOnceAndUsedWhenItComes) {
  engine_.exists = false;
  const auto speech = start(voice());
  EXPECT_FALSE(speech->there());
  speech->interrupt();  // of nothing
  for (const char* text : {"One.", "", "Two."}) speech->saystring(text);
  speech->interrupt();
  EXPECT_EQ(record_.taken(),
            (Texts{"voice: Speech service lost.  One.", "voice: Two.", "voice hushed"}));
  engine_.exists = true;
  EXPECT_TRUE(speech->there());
  speech->saystring("Three.");
  speech->interrupt();
  EXPECT_EQ(record_.taken(), (Texts{"engine: Three.", "engine interrupted"}));
}

TEST_F(SteadySpeechTest, WhatAnEngineDoesNotSayTheVoiceDoes) {
  const auto speech = start(voice());
  for (const char* outage : {"first", "second"}) {
    SCOPED_TRACE(outage);
    engine_.stuck = true;
    speech->saystring("One.");
    EXPECT_TRUE(eventually([&] { return !record_.texts().empty(); }));
    speech->saystring("Two.");
    EXPECT_EQ(record_.taken(), (Texts{"voice: Speech service lost.  One.", "voice: Two."}));
    engine_.stuck = engine_.lost = false;
    speech->saystring("Three.");
    EXPECT_EQ(record_.taken(), Texts{"engine: Three."});
  }
}

TEST_F(SteadySpeechTest, WithoutAnyVoiceTheTextIsAnError) {
  engine_.exists = false;
  EXPECT_THROW(start(nullptr)->saystring("One."), PlatformError);
}

TEST_F(SteadySpeechTest, AServiceThatDiesIsReplacedUntilItIsBack) {
  FakeService service;
  service.start();
  const SpeechLog nolog = [](std::string_view) {};
  SteadySpeech speech([&] { return createspeechservice(nolog); }, voice(), nolog);
  const auto heard = [&](const std::string& text) {
    const Texts asked = service.asked();
    return std::ranges::find(asked, text) != asked.end();
  };
  // Each try is a text of the voice, or the one that the service says.
  const auto spokenbyservice = [&](const std::string& text) {
    speech.interrupt();
    speech.saystring(text);
    return heard(text);
  };
  EXPECT_TRUE(eventually([&] { return spokenbyservice("One."); }));
  service.kill();
  record_.taken();
  speech.interrupt();
  speech.saystring("Two.");
  EXPECT_TRUE(eventually([&] { return !record_.texts().empty(); }));
  speech.saystring("Three.");
  EXPECT_EQ(record_.taken(), (Texts{"voice: Speech service lost.  Two.", "voice: Three."}));
  service.start();
  EXPECT_TRUE(eventually([&] { return spokenbyservice("Four."); }));
  EXPECT_FALSE(heard("Two.") || heard("Three."));
}

}  // namespace
}  // namespace duskmarch
