#include "shell/speech/speech.h"

#include "harness.h"
#include "shell/keyboard.h"
#include "shell/speech/pages.h"
#include "shell/speech/selfreading.h"
#include "shell/startup.h"

namespace duskmarch {
namespace {

using Lines = std::vector<std::string>;

TEST(Speech, EachModeSpeaksByItsEngine) {
  struct Case {
    int mode;
    bool voice;
    Lines first, again;
  };
  const Lines keys = {"synthetic\t17\tdown", "synthetic\t16\tdown", "synthetic\t84\tdown",
                      "synthetic\t17\tup",   "synthetic\t16\tup",   "synthetic\t84\tup"};
  Lines titlekeys = {"title\tHello"}, changedkeys = {"title\tHello ", "title\tHello"};
  titlekeys.insert(titlekeys.end(), keys.begin(), keys.end());
  changedkeys.insert(changedkeys.end(), keys.begin(), keys.end());
  const Case cases[] = {
      {0, true, {"voice\tHello"}, {"voice\tHello"}},
      {0, false, {"title\tHello"}, {"title\tHello"}},
      {1, true, {"title\tHello"}, {"title\tHello ", "title\tHello"}},
      {2, true, titlekeys, changedkeys},
      {3, true, {"jaws\tHello"}, {"jaws\tHello"}},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.mode);
    Player player({.voice = c.voice, .jaws = true});
    player.game().speechmode = c.mode;
    const auto hello = [&] { sayit(player.game(), "Hello"); };
    EXPECT_EQ(player.during(hello), c.first);
    EXPECT_EQ(player.during(hello), c.again);
  }
}

TEST(Speech, AMissingJawsCostsOneTextAndOneLogLine) {
  Player player;
  player.game().speechmode = 3;
  EXPECT_EQ(player.during([&] { sayit(player.game(), "Lost"); }), Lines{});
  EXPECT_EQ(player.folder().read("debuglog.txt").substr(0, 16), "error in sayit: ");
  EXPECT_EQ(player.game().saidlines[1], "Lost");
}

TEST(Speech, HistoryIsReviewedWithoutGrowing) {
  Player player;
  for (int n = 1; n <= 1200; ++n) sayit(player.game(), "line " + std::to_string(n));
  EXPECT_EQ(player.game().saidlines[999], "line 202");
  sayit(player.game(), "");
  EXPECT_EQ(player.game().saidlines[1], "line 1200");
  player.game().reviewpos = 997;
  player.press(key::rightbracket, 1);
  EXPECT_EQ(player.game().reviewpos, 999);
  player.press(key::shift, 1);  // any other key ends the review
  EXPECT_EQ(player.game().reviewpos, 0);
}

TEST(Speech, TabLeadsToJawsAndBack) {
  Player withjaws({.jaws = true});
  withjaws.game().speechmode = 2;
  EXPECT_EQ(withjaws.press(key::tab), (Lines{"title\tQuorvane's Duskmarch (v0.1 testing 3)",
                                             "play\t2\t0\t0\t0\tsounds/Menu/JAWS.wav"}));
  EXPECT_EQ(withjaws.press(key::tab), (Lines{"title\tQuorvane's Duskmarch (v0.1 testing 3)",
                                             "play\t3\t0\t0\t0\tsounds/Menu/SAPI.wav"}));
}

TEST(Speech, ProgressFileSetsWhatMakesSense) {
  struct Case {
    std::string content;
    int mode, rate;
    std::string spare;
    bool ratetold;
  };
  const Case cases[] = {
      {" 2 \r\n 5 \r\n\r\n", 2, 5, "", true},
      {"3\n4.5\n keep me \n", 3, 4, " keep me ", true},
      {" 1 ", 1, 2, "", false},
      {"", 0, 2, "", false},
      {"4\r\n0.9\r\n7", 0, 2, "7", false},
      {"-0.5\n11\n", 0, 2, "", false},
      {"1e400\nnan\n", 0, 2, "", false},
      {"2x\n 10.99 \n", 0, 10, "", true},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.content);
    ProgramFolder folder;
    folder.write("progress.ini", c.content);
    Player player({.folder = folder.path});
    EXPECT_EQ(player.game().speechmode, c.mode);
    EXPECT_EQ(player.game().sapirate, c.rate);
    EXPECT_EQ(player.game().progressspare, c.spare);
    const auto events = player.events();
    EXPECT_EQ(std::ranges::count(events, "rate\t" + std::to_string(c.rate)),
              (c.ratetold ? 1 : 0) + (c.rate == 2 ? 1 : 0));
    player.press(key::pageup);
    EXPECT_TRUE(folder.read("progress.ini").ends_with(c.spare + "\r\n"));
  }
}

TEST(Speech, AFolderThatCannotBeWrittenIsToldOnce) {
  Player player;
  std::filesystem::create_directory(player.folder().path / "progress.ini");
  EXPECT_EQ(player.spokenby(key::pageup),
            Lines{"Sapi rate changed to 3.  Your speech settings cannot be saved.  "
                  "The game goes on without saving."});
  EXPECT_EQ(player.spokenby(key::pageup), Lines{"Sapi rate changed to 4."});
  EXPECT_FALSE(std::filesystem::exists(player.folder().path / "progress.ini.new"));
}

TEST(Speech, WhatTheGameAddsGoesWithTheTextOrWaitsForThePage) {
  constexpr std::string_view failure =
      "Your speech settings cannot be saved.  The game goes on without saving.";
  const auto unwritable = [](Player& player) {
    std::filesystem::create_directory(player.folder().path / "progress.ini");
  };
  Player withoutjaws;
  unwritable(withoutjaws);
  withoutjaws.game().speechmode = speechmode::windoweyes;
  EXPECT_EQ(withoutjaws.spokenby(key::tab),
            Lines{"Jaws does not seem to be responding, Sapi on.  " + std::string(failure)});
  EXPECT_TRUE(withoutjaws.game().saidlines[1].ends_with(failure));
  Player bysound;
  unwritable(bysound);
  EXPECT_EQ(bysound.press(key::tab).back(), "title\t" + std::string(failure));

  Player player;
  const auto says = [&](std::string_view text) {
    return player.spoken([&] { sayit(player.game(), text); });
  };
  addsentence(player.game(), "Added.");
  EXPECT_EQ(says(""), Lines{});
  player.press(key::rightbracket);
  EXPECT_EQ(player.spokenby(key::rightbracket).at(0).find("Added"), std::string::npos);
  player.game().reviewpos = 0;
  EXPECT_EQ(says("Ends in spaces.  "), Lines{"Ends in spaces.  Added."});
  EXPECT_EQ(says("Once."), Lines{"Once."});
  addsentence(player.game(), "One.");
  addsentence(player.game(), "Two.");
  player.game().storylabel = "Page.";
  player.game().menuname = screen::hideout;
  showstory(player.game());
  EXPECT_EQ(says("Over."), Lines{"Over."});
  focusstory(player.game());
  EXPECT_EQ(player.spokenby(key::escape), Lines{"Back at the hideout.  One.  Two."});
}

// Engines whose every call fails.
class BrokenVoice : public Voice {
 public:
  void setrate(int) override { throw PlatformError("broken"); }
  void speak(std::string_view) override { throw PlatformError("broken"); }
  void speakafter(std::string_view) override { throw PlatformError("broken"); }
  void hush() override { throw PlatformError("broken"); }
};

TEST(Speech, AFailedCallIsOneLineOfTheLog) {
  const std::function<void(Game&)> calls[] = {
      [](Game& game) { sayit(game, "Text"); },
      [](Game& game) { messagebox(game, "", "Text"); },
      [](Game& game) { caretmoved(game, "Text"); },
      [](Game& game) { stopreading(game); },
      [](Game& game) { giverate(game); },
  };
  for (const auto& call : calls) {
    Player player({.reader = false});
    player.game().sapivoice = std::make_unique<BrokenVoice>();
    call(player.game());
    EXPECT_EQ(player.folder().read("debuglog.txt"), "error in sayit: broken\r\n");
    player.game().sapivoice.reset();
    player.game().sapiready = 0;
    player.folder().write("debuglog.txt", "");
    call(player.game());
    EXPECT_EQ(player.folder().read("debuglog.txt"), "");
  }
}

TEST(Speech, AFullDiskLeavesTheSettingsAsTheyWere) {
  Player player;
  player.press(key::pageup);
  const std::string kept = player.folder().read("progress.ini");
  EXPECT_FALSE(kept.empty());
  const FullDisk full(4);
  player.press(key::pageup);
  EXPECT_EQ(player.folder().read("progress.ini"), kept);
  EXPECT_FALSE(std::filesystem::exists(player.folder().path / "progress.ini.new"));
}

// A canvas of 280 pixels holds exactly 16 characters a line: (280 / 28) x 1.6.
class NarrowCanvas : public Canvas {
 public:
  int width() const override { return 280; }
  int height() const override { return 660; }
  void fill(const Rect& area, Colour) override {
    operations.push_back("fill " + std::to_string(area.top) + " " + std::to_string(area.bottom));
  }
  void outline(const Rect&, Colour) override {}
  void text(const Text& text) override {
    operations.push_back("text " + std::to_string(text.y) + " " + std::string(text.words));
  }
  Lines operations;
};

TEST(Speech, PaintingWrapsByCharactersAndCoversTheMapUntilTheNextKey) {
  Player player;
  NarrowCanvas canvas;
  player.session().replay.window.drawon(&canvas);
  const auto painted = [&](const auto& action) {
    canvas.operations.clear();
    action(player.game());
    return canvas.operations;
  };
  EXPECT_EQ(painted([](Game& game) { sayit(game, "short"); }),
            (Lines{"fill 0 101", "text 15 short"}));
  EXPECT_EQ(painted([](Game& game) { sayit(game, "0123456789abcdefÄbcdefghijklmnop0123"); }),
            (Lines{"fill 0 101", "text 15 0123456789abcdef", "text 55 Äbcdefghijklmnop",
                   "fill 95 135", "text 95 0123"}));
  const Lines uncovered = {"fill 0 101", "text 15 0123456789abcdef", "text 55 Äbcdefghijklmnop"};
  EXPECT_EQ(painted([](Game& game) { keypress(game, {.keycode = 0}); }), uncovered);
  EXPECT_EQ(painted([](Game& game) { repaint(game); }), uncovered);
  EXPECT_EQ(painted([](Game& game) { sayit(game, ""); }), (Lines{"fill 0 101", "text 15 "}));
}

}  // namespace
}  // namespace duskmarch
