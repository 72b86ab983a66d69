// What is read to players without a screen reader, and when it falls silent.
#include "shell/speech/selfreading.h"

#include "harness.h"
#include "shell/speech/pages.h"

namespace duskmarch {
namespace {

using Lines = std::vector<std::string>;

// What a player without a screen reader hears, by the voice or by the speech service.
class Unaided {
 public:
  explicit Unaided(int mode) : player({.jaws = true, .reader = false}) {
    player.game().speechmode = mode;
  }
  Lines heard(int code, int shift = 0) {
    Lines texts;
    for (const std::string& event : player.press(code, shift)) {
      const bool spoken = event.starts_with("voice\t") || event.starts_with("jaws\t");
      const std::string text = event.substr(event.find('\t') + 1);
      if (spoken && !text.empty()) texts.push_back(text);
    }
    return texts;
  }

  Player player;
};

TEST(SelfReading, VoiceAndServiceReadTheSame) {
  for (const int mode : {speechmode::sapi, speechmode::jaws}) {
    SCOPED_TRACE(mode);
    Unaided unaided(mode);
    Game& game = unaided.player.game();
    game.summarylabel.lines = {"Third line", "", "First line"};
    EXPECT_EQ(unaided.heard(key::l), Lines{"First line"});
    struct Step {
      int key;
      std::string text;
    };
    const Step steps[] = {
        {key::r, "First line"},      {key::up, "First line"},    {key::left, "First line"},
        {key::home, "First line"},   {key::right, "i"},          {key::home, "F"},
        {key::end, "First line"},    {key::down, "Blank."},      {key::r, "Blank."},
        {key::right, "Third line"},  {key::down, "Third line"},  {key::pagedown, "Third line"},
        {key::pageup, "First line"}, {key::pageup, "First line"}};
    for (const Step& step : steps) EXPECT_EQ(unaided.heard(step.key), Lines{step.text}) << step.key;
    EXPECT_EQ(unaided.heard(key::tab), Lines{});
    unaided.heard(key::escape);
    game.storylabel = "Page\r\nEnd";
    showstory(game);
    focusstory(game);
    EXPECT_EQ(unaided.heard(key::r), Lines{"Page\\r\\nEnd"}) << "the page was read whole";
    unaided.heard(key::down);
    EXPECT_EQ(unaided.heard(key::r), Lines{"End"});
    unaided.heard(key::escape);
    for (const int code : {key::down, key::down, key::enter, key::escape, key::space, key::down}) {
      unaided.heard(code);
    }
    unaided.player.answer("N");
    EXPECT_EQ(unaided.heard(key::enter),
              (Lines{"Enter N S E W to choose your direction, or leave blank to cancel.",
                     "Choose direction", "N", "Nightjar moves to the North."}));
    EXPECT_EQ(game.saidlines[1], "Nightjar moves to the North.");
    EXPECT_TRUE(mode == speechmode::sapi || !game.saidlines[2].starts_with("Enter N S"));
  }
}

TEST(SelfReading, AfterATurnRSaysItAgain) {
  Unaided unaided(speechmode::sapi);
  for (const int code : {key::down, key::down, key::enter, key::escape}) unaided.heard(code);
  const Lines turn = unaided.heard(key::e, modifier::shift);
  ASSERT_EQ(turn.size(), 1u);
  EXPECT_EQ(unaided.heard(key::r), turn);
}

TEST(SelfReading, IsLeftToAReaderAndToEnginesThatAreReaders) {
  for (const bool reader : {true, false}) {
    for (int mode = 0; mode < speechmode::count; ++mode) {
      Player player({.jaws = true, .reader = reader});
      player.game().speechmode = mode;
      const auto events = player.during([&] { messagebox(player.game(), "Title", "Text"); });
      const bool readsitself = !reader && (mode == speechmode::sapi || mode == speechmode::jaws);
      EXPECT_EQ(events.size(), readsitself ? 2u : 1u) << mode << reader;
      EXPECT_EQ(events.at(0).ends_with("\tTitle.  Text"), readsitself);
    }
  }
}

// What the engines are told beside texts.
struct Cuts {
  int voice = 0, service = 0;
};
class CutVoice : public Voice {
 public:
  explicit CutVoice(Cuts& cuts) : cuts_(cuts) {}
  void setrate(int) override {}
  void speak(std::string_view) override {}
  void speakafter(std::string_view) override {}
  void hush() override { ++cuts_.voice; }

 private:
  Cuts& cuts_;
};
class CutService : public JawsApi {
 public:
  explicit CutService(Cuts& cuts) : cuts_(cuts) {}
  void saystring(std::string_view) override {}
  void interrupt() override { ++cuts_.service; }

 private:
  Cuts& cuts_;
};

TEST(SelfReading, FallsSilentForKeysInBoxesClosedPagesAndOtherEngines) {
  struct Case {
    std::string what;
    int mode;
    bool reader;
    bool voicecut, servicecut;
    void (*act)(Player&);
  };
  const auto ctrlinbox = [](Player& player) { boxkey(player.game(), key::ctrl); };
  const auto letterinbox = [](Player& player) { boxkey(player.game(), key::n); };
  const auto closepage = [](Player& player) {
    showstory(player.game());
    hidestory(player.game());
  };
  const auto closesummary = [](Player& player) {
    showsummary(player.game());
    hidesummary(player.game());
  };
  const auto leave = [](Player& player) { player.press(key::tab); };
  const Case cases[] = {
      {"Ctrl in a box", speechmode::sapi, true, true, false, ctrlinbox},
      {"Ctrl in a box", speechmode::sapi, false, true, false, ctrlinbox},
      {"Ctrl in a box", speechmode::jaws, true, false, true, ctrlinbox},
      {"a letter in a box", speechmode::sapi, false, false, false, letterinbox},
      {"a letter in a box", speechmode::jaws, true, false, true, letterinbox},
      {"a page closed", speechmode::sapi, false, true, false, closepage},
      {"a page closed", speechmode::sapi, true, false, false, closepage},
      {"a page closed", speechmode::jaws, false, false, true, closepage},
      {"the summary closed", speechmode::sapi, false, true, false, closesummary},
      {"Tab", speechmode::sapi, true, true, false, leave},
      {"Tab", speechmode::jaws, true, false, true, leave},
      {"Tab", speechmode::nvda, true, false, false, leave},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.what + " in mode " + std::to_string(c.mode) +
                 (c.reader ? " with a reader" : ""));
    Player player({.jaws = true, .reader = c.reader});
    Cuts cuts;
    player.game().sapivoice = std::make_unique<CutVoice>(cuts);
    player.game().jawsapi = std::make_unique<CutService>(cuts);
    player.game().speechmode = c.mode;
    c.act(player);
    EXPECT_EQ(cuts.voice > 0, c.voicecut);
    EXPECT_EQ(cuts.service > 0, c.servicecut);
  }
}

}  // namespace
}  // namespace duskmarch
