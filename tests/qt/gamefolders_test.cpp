#include "platform/gamefolders.h"

#include <cstdlib>

#include <unistd.h>

#include "../harness.h"

namespace duskmarch {
namespace {

namespace fs = std::filesystem;

void set(const char* variable, const std::string& value) {
  value.empty() ? ::unsetenv(variable) : ::setenv(variable, value.c_str(), 1);
}

TEST(GameFolders, FindThePlayersDataOrKeepNothing) {
  const fs::path missing = "/no such folder";
  const ProgramFolder own;
  fs::permissions(own.path, fs::perms::all);
  const std::string home = own.path.string();
  const std::string usual = home + "/.local/share/duskmarch";
  const struct {
    std::string data, home, files;
  } rows[] = {
      {"", home, usual},
      {home + "/data", home, home + "/data/duskmarch"},
      {"data", home, usual},  // such a one means nothing
      {"/proc/data", home, missing},
      {"", "/proc/home", missing},
  };
  for (const auto& row : rows) {
    set("XDG_DATA_HOME", row.data);
    set("HOME", row.home);
    EXPECT_EQ(GameFolders(missing).files(), row.files) << row.data << ", " << row.home;
    EXPECT_EQ(GameFolders(own.path).files(), own.path);
  }
  if (::geteuid() != 0) return;  // only the administrator can be somebody whom nobody knows
  const fs::path before = fs::current_path();
  const ProgramFolder open;
  fs::permissions(open.path, fs::perms::all);
  fs::current_path(open.path);
  set("HOME", "");
  ASSERT_EQ(::seteuid(54321), 0);
  EXPECT_EQ(GameFolders(missing).files(), missing);
  ASSERT_EQ(::seteuid(0), 0);
  fs::current_path(before);
}

TEST(GameFolders, AreOneGamesAtATime) {
  const ProgramFolder folder;
  {
    const GameFolders first(folder.path);
    EXPECT_FALSE(first.inuse());
    EXPECT_TRUE(GameFolders(folder.path).inuse());
  }
  EXPECT_FALSE(GameFolders(folder.path).inuse());
}

}  // namespace
}  // namespace duskmarch
