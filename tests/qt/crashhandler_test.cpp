#include "platform/qt/crashhandler.h"

#include <csignal>
#include <fstream>
#include <iterator>
#include <string>

#include <gtest/gtest.h>
#include <unistd.h>

namespace duskmarch {
namespace {

TEST(CrashHandler, LeavesTheLastKeysAsAScript) {
  const std::filesystem::path folder =
      std::filesystem::temp_directory_path() / ("duskmarch-crash-" + std::to_string(getpid()));
  std::filesystem::create_directory(folder);
  CrashTrace trace;
  trace.begin("0.1 testing 3", 7);
  trace.key(13, 0);
  trace.answer("N");
  for (const int signal : {SIGSEGV, SIGABRT, SIGFPE}) {
    std::filesystem::remove(folder / crashfile);
    EXPECT_EXIT(
        {
          const CrashHandler handler(trace, folder);
          raise(signal);
        },
        testing::KilledBySignal(signal), "");
    std::ifstream file(folder / crashfile);
    EXPECT_EQ(std::string(std::istreambuf_iterator<char>(file), {}),
              "# Duskmarch 0.1 testing 3: the last keys before a crash\nseed 7\nanswer N\n"
              "key 13 0\n");
  }
  std::filesystem::remove_all(folder);
}

}  // namespace
}  // namespace duskmarch
