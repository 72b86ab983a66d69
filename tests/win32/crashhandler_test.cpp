#include "platform/win32/crashhandler.h"

#include <filesystem>
#include <fstream>
#include <sstream>
#include <stdexcept>

#include <gtest/gtest.h>
#include <windows.h>

namespace duskmarch {

namespace {

namespace fs = std::filesystem;

// One for the test, and for the program that is started to crash.
fs::path folder() {
  return fs::temp_directory_path() / L"duskmarch żółw Ἑλένη";
}

std::string content(const fs::path& file) {
  std::ifstream stream(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), {}};
}

int deeper(volatile int* above) {
  volatile int here[1000] = {*above};
  return *above < 0 ? here[1] : deeper(here) + here[0];
}

void toodeep() {
  volatile int start = 0;
  start = deeper(&start);
}
void fail() {
  throw std::runtime_error("nobody catches it");
}
void byanexception() noexcept {
  fail();
}

void crash(void (*how)()) {
  CrashTrace trace;
  trace.begin("0.1 testing 3", 7);
  trace.loaded("game.sav", "saved\r\n");
  trace.key(13, 0);
  const CrashHandler handler(trace, folder());
  how();
}

TEST(CrashHandler, EveryCrashLeavesItsKeysAndADumpAndEndsAsItWould) {
  struct Row {
    const char* name;
    void (*how)();
    int status;
  };
  // Any other error is one more in the test on a display: Wine takes ten seconds for a dump.
  const Row rows[] = {{"stack", toodeep, static_cast<int>(EXCEPTION_STACK_OVERFLOW)},
                      {"exception", byanexception, 3}};
  for (const Row& row : rows) {
    fs::remove_all(folder());
    fs::create_directory(folder());
    std::ofstream(folder() / crashfile) << std::string(1000, 'x');
    EXPECT_EXIT(crash(row.how), testing::ExitedWithCode(row.status), "") << row.name;
    EXPECT_EQ(content(folder() / crashfile),
              "# Duskmarch 0.1 testing 3: all keys before a crash\nseed 7\n"
              "# needs what is in crash-game.sav as game.sav from the start\nkey 13\n")
        << row.name;
    EXPECT_EQ(content(folder() / "crash-game.sav"), "saved\r\n") << row.name;
    EXPECT_EQ(content(folder() / "crash.dmp").substr(0, 4), "MDMP") << row.name;
  }
  fs::remove_all(folder());
}

}  // namespace

}  // namespace duskmarch
