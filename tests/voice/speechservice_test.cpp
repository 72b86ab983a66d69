// Mode 3's speech service: what it is told, and how it is survived.
#include <gtest/gtest.h>

#include "fakeservice.h"
#include "platform/voice/engines.h"

namespace duskmarch {
namespace {

using Texts = std::vector<std::string>;

class SpeechServiceTest : public testing::Test {
 protected:
  SpeechServiceTest() {
    service_.start();
    jaws_ = createspeechservice([this](std::string_view line) {
      const std::lock_guard guard(mutex_);
      logged_.emplace_back(line);
    });
  }
  Texts logged() {
    const std::lock_guard guard(mutex_);
    return logged_;
  }
  // Without the two lines that a machine which stands still for a second adds: that is no fault.
  Texts loggedbutdelays() {
    Texts lines = logged();
    std::erase_if(lines, [](const std::string& line) {
      return line == "the speech service does not answer" ||
             line == "the speech service did not answer";
    });
    return lines;
  }
  bool asked(const Texts& texts) {
    return eventually([&] { return service_.asked() == texts; });
  }
  void speakuntillogged(std::string_view text) {
    EXPECT_TRUE(eventually([&] {
      jaws_->interrupt();
      jaws_->saystring(text);
      return !logged().empty();
    }));
  }

  FakeService service_;
  std::mutex mutex_;
  Texts logged_;
  std::unique_ptr<LosableSpeech> jaws_;
};

TEST_F(SpeechServiceTest, SaysOneTextAfterTheOther) {
  for (const char* text : {"One.", "", "two\x01three", ".5", "."}) jaws_->saystring(text);
  EXPECT_TRUE(asked({"One.", "two three", "..5", "full stop"}));  // a line's first dot is doubled
  EXPECT_EQ(loggedbutdelays(), Texts());
}

TEST_F(SpeechServiceTest, AKeyCutsOffOnlyWhatIsBeingSaid) {
  jaws_->interrupt();
  jaws_->saystring("One.");
  EXPECT_TRUE(asked({"One."}));
  jaws_->interrupt();
  jaws_->interrupt();
  jaws_->saystring("Two.");
  EXPECT_TRUE(asked({"One.", "CANCEL SELF", "Two."}));
}

TEST_F(SpeechServiceTest, SaysTheLatestTextWhenTheServiceIsBack) {
  jaws_->saystring("One.");
  EXPECT_TRUE(asked({"One."}));
  service_.kill();
  jaws_->saystring("Two.");
  jaws_->interrupt();
  jaws_->saystring("Three.");
  EXPECT_TRUE(eventually([&] { return !logged().empty(); }));
  service_.start();
  EXPECT_TRUE(asked({"One.", "Three."}));
  EXPECT_EQ(loggedbutdelays(), Texts({"the connection to the speech service was lost"}));
}

TEST_F(SpeechServiceTest, WhatItCannotSayIsTakenBack) {
  jaws_->saystring("One.");
  EXPECT_TRUE(asked({"One."}));
  EXPECT_TRUE(eventually([&] { return !jaws_->stucksince(); }));
  EXPECT_EQ(jaws_->giveup(), Texts()) << "it gets on";
  service_.freeze(true);
  for (const char* text : {"Two.", "Three."}) jaws_->saystring(text);
  jaws_->interrupt();  // a key does not hide for how long it has got nowhere
  for (const char* text : {"Four.", "Five."}) jaws_->saystring(text);
  EXPECT_TRUE(jaws_->stucksince().has_value());
  EXPECT_EQ(jaws_->giveup(), (Texts{"Four.", "Five."}));
  EXPECT_TRUE(jaws_->lost());
  service_.freeze(false);
  EXPECT_TRUE(eventually([&] { return !jaws_->lost(); }));
  service_.kill();
  jaws_->saystring("Six.");
  EXPECT_TRUE(eventually([&] { return !logged().empty(); }));
  EXPECT_EQ(jaws_->giveup(), Texts{"Six."});
  service_.start();
  EXPECT_TRUE(eventually([&] { return !jaws_->lost(); })) << "nothing is given to it meanwhile";
  EXPECT_FALSE(jaws_->stucksince().has_value());
}

TEST_F(SpeechServiceTest, OneThatOnlyTakesConnectionsIsNotBack) {
  service_.refuse(true);
  jaws_->saystring("One.");
  EXPECT_TRUE(eventually([&] { return !logged().empty(); }));
  EXPECT_EQ(jaws_->giveup(), Texts{"One."});
  const int tries = service_.connections();
  EXPECT_TRUE(eventually([&] { return service_.connections() > tries + 1; }));
  EXPECT_TRUE(jaws_->lost());
  service_.refuse(false);
  EXPECT_TRUE(eventually([&] { return !jaws_->lost(); }));
}

TEST_F(SpeechServiceTest, WhatItRefusesIsSaidLaterOrTakenBack) {
  jaws_->saystring("One.");
  EXPECT_TRUE(asked({"One."}));
  service_.refusetexts(true);
  for (const char* text : {"Two.", "Three."}) jaws_->saystring(text);
  EXPECT_TRUE(eventually([&] { return !logged().empty(); }));
  service_.refusetexts(false);
  EXPECT_TRUE(asked({"One.", "Two.", "Three."}));
  EXPECT_TRUE(eventually([&] { return !jaws_->stucksince(); }));

  service_.refusetexts(true);
  for (const char* text : {"Four.", "Five."}) jaws_->saystring(text);
  const auto refusedagain = [&, before = service_.refusedtexts()](int times) {
    return eventually([&] { return service_.refusedtexts() >= before + times; });
  };
  EXPECT_TRUE(refusedagain(1));
  EXPECT_EQ(jaws_->giveup(), Texts({"Four.", "Five."}));
  EXPECT_TRUE(refusedagain(3));
  EXPECT_TRUE(jaws_->lost());
  service_.refusetexts(false);
  EXPECT_TRUE(eventually([&] { return !jaws_->lost(); })) << "nothing is given to it meanwhile";
  EXPECT_EQ(loggedbutdelays(), Texts(2, "the speech service refused a text"));
}

TEST_F(SpeechServiceTest, OneThatFailedToStartIsStartedAgain) {
  jaws_->saystring("One.");
  EXPECT_TRUE(asked({"One."}));
  service_.failtostart();
  service_.kill();
  jaws_->saystring("Two.");
  EXPECT_TRUE(eventually([&] { return service_.starts() > 1; }));
  service_.start();
  EXPECT_TRUE(asked({"One.", "Two."}));
}

TEST_F(SpeechServiceTest, AFrozenServiceIsReportedAndSpeaksAgain) {
  jaws_->saystring("One.");
  EXPECT_TRUE(asked({"One."}));
  service_.freeze(true);
  speakuntillogged("Two.");
  service_.freeze(false);
  EXPECT_TRUE(eventually([&] { return service_.asked().back() == "Two."; }));
  EXPECT_EQ(logged(), Texts({"the speech service does not answer"}));
}

TEST_F(SpeechServiceTest, AThreadThatHangsWhileConnectingIsReplaced) {
  service_.freeze(true);
  speakuntillogged("One.");
  service_.freeze(false);
  EXPECT_TRUE(asked({"One."}));
  service_.freeze(true);
  jaws_->saystring("Two.");
  jaws_.reset();  // and the program can end
}

}  // namespace
}  // namespace duskmarch
