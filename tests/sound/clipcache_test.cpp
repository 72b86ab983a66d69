// A sound file is decoded once while it stays what it is, and looked at each time.
#include "platform/sound/clipcache.h"

#include <fstream>

#include "../harness.h"
#include "platform/desktop.h"

namespace duskmarch {
namespace {

namespace fs = std::filesystem;

TEST(ClipCache, DecodesAgainWhatHasChanged) {
  const ProgramFolder folder;
  const fs::path file = folder.path / "sounds/menu/arrows.wav";
  ClipCache clips;
  const auto arrows = clips.clip(file);
  EXPECT_EQ(clips.clip(file), arrows);
  const auto time = fs::last_write_time(file);
  fs::last_write_time(file, time + std::chrono::seconds(1));
  const auto later = clips.clip(file);
  EXPECT_NE(later, arrows);
  fs::remove(file);
  fs::copy_file(folder.path / "sounds/menu/enter.wav", file);
  fs::last_write_time(file, time + std::chrono::seconds(1));
  EXPECT_NE(clips.clip(file)->samples.size(), arrows->samples.size());
  fs::remove(file);
  EXPECT_THROW(clips.clip(file), PlatformError);
  folder.write("sounds/menu/arrows.wav", "no sound");
  EXPECT_THROW(clips.clip(file), PlatformError);
  EXPECT_THROW(clips.clip(file), PlatformError);
}

}  // namespace
}  // namespace duskmarch
