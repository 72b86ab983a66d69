// Mode 3's engine and the own voice that stands in for it.
#include "platform/voice/steadyspeech.h"

#include <algorithm>
#include <functional>

#include <gtest/gtest.h>

#include "fakeservice.h"
#include "platform/voice/engines.h"

namespace duskmarch {
namespace {

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

// The speech service itself, and its stand-in.
class SteadyServiceTest : public testing::Test {
 protected:
  SteadyServiceTest() { service_.start(); }
  std::unique_ptr<SteadySpeech> start(std::shared_ptr<Voice> voice) {
    const auto make = [] { return createspeechservice([](std::string_view) {}); };
    const auto log = [](std::string_view line) { ADD_FAILURE() << line; };
    return std::make_unique<SteadySpeech>(make, std::move(voice), log);
  }
  bool heard(const std::string& text) {
    const Texts asked = service_.asked();
    return std::ranges::find(asked, text) != asked.end();
  }
  // Each try is a text of the voice, or the one that the service says.
  bool spokenbyservice(SteadySpeech& speech, const std::string& text) {
    return eventually([&] {
      speech.interrupt();
      speech.saystring(text);
      return heard(text);
    });
  }

  FakeService service_;
  Record record_;
};

TEST_F(SteadyServiceTest, AMissingOneIsToldOnceAndUsedWhenItComes) {
  service_.kill();
  const auto speech = start(std::make_shared<RecordedVoice>(record_));
  EXPECT_FALSE(speech->there());
  speech->interrupt();  // of nothing
  for (const char* text : {",", "", "Two."}) speech->saystring(text);
  speech->interrupt();
  EXPECT_EQ(record_.taken(),
            (Texts{"voice: Speech service lost.  comma", "voice: Two.", "voice hushed"}));
  EXPECT_THROW(start(nullptr)->saystring("One."), PlatformError);
  service_.start();
  EXPECT_TRUE(speech->there());
  EXPECT_TRUE(spokenbyservice(*speech, "Three."));
}

struct Fault {
  const char* name;
  std::function<void(FakeService&)> begin;
  std::function<void(FakeService&)> end;
};

TEST_F(SteadyServiceTest, WhileItSaysNothingTheVoiceSpeaks) {
  const std::vector<Fault> faults = {
      {"dead", [](FakeService& service) { service.kill(); },
       [](FakeService& service) { service.start(); }},
      {"refusing", [](FakeService& service) { service.refusetexts(true); },
       [](FakeService& service) { service.refusetexts(false); }},
  };
  const auto speech = start(std::make_shared<RecordedVoice>(record_));
  for (const Fault& fault : faults) {
    const std::string name = fault.name;
    SCOPED_TRACE(name);
    EXPECT_TRUE(spokenbyservice(*speech, "before it is " + name));
    fault.begin(service_);
    record_.taken();
    speech->interrupt();
    speech->saystring("first while " + name);
    EXPECT_TRUE(eventually([&] { return !record_.texts().empty(); }));
    speech->saystring("then while " + name);
    EXPECT_EQ(record_.taken(), (Texts{"voice: Speech service lost.  first while " + name,
                                      "voice: then while " + name}));
    EXPECT_FALSE(speech->there());
    fault.end(service_);
    EXPECT_TRUE(spokenbyservice(*speech, "after it was " + name));
    EXPECT_TRUE(speech->there());
    EXPECT_FALSE(heard("first while " + name) || heard("then while " + name));
  }
}

TEST_F(SteadyServiceTest, WithoutAnyVoiceItSaysTheTextWhenItIsBack) {
  const auto speech = start(nullptr);
  EXPECT_TRUE(spokenbyservice(*speech, "One."));
  service_.kill();
  speech->saystring("Two.");
  EXPECT_TRUE(eventually([&] { return !speech->there(); }));
  service_.start();
  EXPECT_TRUE(eventually([&] { return heard("Two."); }));
  EXPECT_TRUE(eventually([&] { return speech->there(); }));
}

}  // namespace
}  // namespace duskmarch
