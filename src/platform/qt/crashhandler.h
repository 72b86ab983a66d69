// A crash leaves a trace: on a fatal signal all keys of the run are written to crash.txt among the
// game's files, with the files that it takes to replay them, and the program dies of the signal as
// it would have.
#pragma once

#include <filesystem>

#include "values/crashtrace.h"

namespace duskmarch {

// One at a time; `trace` must outlive it.
class CrashHandler {
 public:
  CrashHandler(const CrashTrace& trace, const std::filesystem::path& filesfolder);
  ~CrashHandler();
  CrashHandler(const CrashHandler&) = delete;
  CrashHandler& operator=(const CrashHandler&) = delete;
};

}  // namespace duskmarch
