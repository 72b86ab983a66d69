// A crash leaves a trace: on an error that nobody handles all keys of the run are written to
// crash.txt among the game's files, with those that it takes to replay them, and to crash.dmp how
// the program stood, for a debugger. It then ends as it would have.
#pragma once

#include <filesystem>

#include "values/crashtrace.h"

namespace duskmarch {

// One at a time; `trace` must outlive it. Made on the thread of the windows.
class CrashHandler {
 public:
  CrashHandler(const CrashTrace& trace, const std::filesystem::path& filesfolder);
  ~CrashHandler();
  CrashHandler(const CrashHandler&) = delete;
  CrashHandler& operator=(const CrashHandler&) = delete;
};

}  // namespace duskmarch
