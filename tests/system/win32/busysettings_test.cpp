#include <utility>

#include <windows.h>

#include "../../harness.h"
#include "shell/speech/settingsfile.h"

namespace duskmarch {
namespace {

using Texts = std::vector<std::string>;

// Another program, which lets others read the file, but not put another one in its place.
class Holder {
 public:
  explicit Holder(const std::filesystem::path& file)
      : handle_(CreateFileW(file.c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                            OPEN_EXISTING, 0, nullptr)) {}
  Holder(const Holder&) = delete;
  Holder& operator=(const Holder&) = delete;
  ~Holder() { letgo(); }

  void letgo() { CloseHandle(std::exchange(handle_, nullptr)); }

 private:
  HANDLE handle_;
};

constexpr auto complaint =
    "Sapi rate changed to 4.  Your speech settings cannot be saved.  The game goes on without "
    "saving.";

TEST(BusySettings, KeysGoOnAndTheNewestAreKeptWhenTheFileIsFree) {
  const ProgramFolder folder;
  folder.write("progress.ini", " 0 \r\n 2 \r\n\r\n");
  Player player({.folder = folder.path});
  Holder other(folder.path / "progress.ini");
  EXPECT_EQ(player.spokenby(key::pageup), Texts{"Sapi rate changed to 3."});
  EXPECT_EQ(player.spokenby(key::pageup), Texts{"Sapi rate changed to 4."});
  EXPECT_EQ(folder.read("progress.ini"), " 0 \r\n 2 \r\n\r\n");
  EXPECT_TRUE(trysettingsagain(player.game()));
  other.letgo();
  EXPECT_FALSE(trysettingsagain(player.game()));
  EXPECT_EQ(folder.read("progress.ini"), " 0 \r\n 4 \r\n\r\n");
  EXPECT_EQ(player.game().saidlines[1], "Sapi rate changed to 4.");
}

TEST(BusySettings, AFailureIsToldOnceItIsCertain) {
  const ProgramFolder folder;
  folder.write("progress.ini", " 0 \r\n 2 \r\n\r\n");
  Player player({.folder = folder.path});
  const Holder other(folder.path / "progress.ini");
  EXPECT_EQ(player.spokenby(key::pageup), Texts{"Sapi rate changed to 3."});
  EXPECT_EQ(player.spokenby(key::pageup), Texts{"Sapi rate changed to 4."});
  while (trysettingsagain(player.game())) Sleep(1);
  EXPECT_EQ(player.game().saidlines[1], complaint);  // said with what had been said last
  EXPECT_EQ(folder.read("progress.ini"), " 0 \r\n 2 \r\n\r\n");
  EXPECT_EQ(player.spokenby(key::pageup), Texts{"Sapi rate changed to 5."});
  while (trysettingsagain(player.game())) Sleep(1);
  EXPECT_EQ(player.game().saidlines[1], "Sapi rate changed to 5.");
}

}  // namespace
}  // namespace duskmarch
