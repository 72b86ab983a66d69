// The pool of sound buffers: what is played, and at which volume and pan.
#include "audio/sounds.h"

#include <cmath>
#include <limits>

#include "harness.h"

namespace duskmarch {
namespace {

constexpr std::string_view arrows = "\\sounds\\menu\\arrows.wav";

class Sounds : public testing::Test {
 protected:
  Sounds() {
    game.programfolder = game.filesfolder = folder.path;
    game.dsound = replay.system.opensound();
    game.maxbuffer = 49;
  }
  // The events of `action`, without the line ends.
  template <class Action>
  std::string during(Action action) {
    replay.transcript.clear();
    action();
    std::string text = replay.transcript.text();
    if (!text.empty()) text.pop_back();
    return text;
  }
  std::string played(std::string_view name, int buffer = -1) {
    return during([&] { makesound(game, name, 0, 0, false, buffer); });
  }
  std::string log() const { return folder.read("debuglog.txt"); }

  ProgramFolder folder;
  ReplayDesktop replay{{.folder = folder.path}};
  Game game{replay.desktop()};
};

TEST_F(Sounds, FiftyPlaysUseBuffers2To49AndThen2And3Again) {
  for (int n = 0; n < 50; ++n) {
    const int buffer = n < 48 ? n + 2 : n - 46;
    EXPECT_EQ(played(arrows),
              "play\t" + std::to_string(buffer) + "\t0\t0\t0\tsounds/menu/arrows.wav");
  }
  const auto loop = [&] { makesound(game, "/sounds/Menu/SAPI.wav", -300, 2500, true, 1); };
  EXPECT_EQ(during(loop), "play\t1\t-300\t2500\t1\tsounds/Menu/SAPI.wav");
  EXPECT_EQ(game.nextbuffer, 3);  // a named buffer leaves the rotation alone
}

TEST_F(Sounds, VolumeAndPanAreRoundedAndTakenWithinTheirRange) {
  struct Case {
    double (*set)(Game&, int, double);
    double given;
    double handedback;
    std::string heard;  // volume and pan, which were -100 and 200
  };
  const Case cases[] = {
      {setvol, -6000, -6000, "-100\t200"},         {setvol, 1, 1, "-100\t200"},
      {setvol, -2500.456, -2500.46, "-2500\t200"}, {setvol, -5000.004, -5000, "-5000\t200"},
      {setvol, -2500.875, -2500.88, "-2500\t200"}, {setvol, 0.004, 0, "0\t200"},
      {setpan, 10000, 10000, "-100\t10000"},       {setpan, 10001, 10001, "-100\t200"},
      {setpan, -10000, -10000, "-100\t-10000"},    {setpan, 0.125, 0.12, "-100\t0"},
  };
  for (const Case& c : cases) {
    makesound(game, arrows, -100, 200, false, 7);
    EXPECT_EQ(c.set(game, 7, c.given), c.handedback);
    EXPECT_EQ(during([&] { game.dsound->play(7, false); }),
              "play\t7\t" + c.heard + "\t0\tsounds/menu/arrows.wav");
  }
}

TEST_F(Sounds, AMissingOrBadFileIsLoggedEachTimeAndTheBufferKeepsItsSound) {
  folder.write("bad.wav", "no sound at all");
  played(arrows, 5);
  for (const char* name : {"  \\sounds\\none.wav ", "\\sounds\\none.wav", "/bad.wav"}) {
    EXPECT_EQ(played(name, 5), "play\t5\t0\t0\t0\tsounds/menu/arrows.wav");
  }
  const std::string line = "File is missing: " + textof(folder.path) + "\\sounds\\none.wav\r\n";
  EXPECT_TRUE(log().starts_with(line + line + "error in setsound: ")) << log();
  EXPECT_EQ(game.bufferfile[5], arrows);
}

TEST_F(Sounds, NamesOfFilesAreUtf8) {
  folder.write("sounds/Żółw ψ.wav", folder.read("sounds/menu/arrows.wav"));
  for (const std::string asked : {"/sounds/Żółw ψ.wav", "\\SOUNDS\\Żółw ψ.WAV"}) {
    EXPECT_TRUE(played(asked).ends_with("w ψ." + asked.substr(asked.size() - 3))) << asked;
  }
  EXPECT_EQ(log(), "");
}

TEST_F(Sounds, WhatIsNoFileIsMissingAndNothingWaitsForIt) {
  ASSERT_TRUE(makepipe(folder.path / "pipe.wav"));
  std::filesystem::create_directory(folder.path / "folder.wav");
  for (const std::string name : {"/pipe.wav", "/folder.wav"}) {
    EXPECT_EQ(played(name), "");
    EXPECT_TRUE(log().ends_with("File is missing: " + textof(folder.path) + name + "\r\n"));
  }
}

TEST_F(Sounds, ABufferThatNeverHeldASoundPlaysNothingAndTheRotationMovesOn) {
  EXPECT_EQ(played("/none.wav"), "");
  EXPECT_EQ(played(arrows), "play\t3\t0\t0\t0\tsounds/menu/arrows.wav");
}

TEST_F(Sounds, ANameIsTrimmedAndAnEmptyOneLoadsNothing) {
  setsound(game, 4, " /sounds/menu/enter.wav  ");
  setsound(game, 4, "   ");
  EXPECT_EQ(game.bufferfile[4], "/sounds/menu/enter.wav");
  EXPECT_EQ(log(), "");
}

TEST_F(Sounds, ABufferThatDoesNotExistIsLoggedAndSilent) {
  EXPECT_EQ(played(arrows, 50), "");
  EXPECT_TRUE(log().starts_with("error in setsound: ")) << log();
  EXPECT_NE(log().find("error in setvol: "), std::string::npos);
  EXPECT_NE(log().find("error in setpan: "), std::string::npos);
}

TEST_F(Sounds, SineAndCosineComeFromTheTables) {
  buildtables(game);
  EXPECT_EQ(quicksin(game, -0.5), std::sin(5.78));
  EXPECT_EQ(quickcos(game, 7), std::cos(0.72));
  EXPECT_EQ(quicksin(game, 6.283186), std::sin(6.28));
  EXPECT_EQ(quickcos(game, 0.125), std::cos(0.12));  // halves to even
  EXPECT_EQ(log(), "");
  EXPECT_EQ(quicksin(game, std::numeric_limits<double>::infinity()), 0);
  EXPECT_TRUE(log().starts_with("error in quicksin: ")) << log();
}

}  // namespace
}  // namespace duskmarch
