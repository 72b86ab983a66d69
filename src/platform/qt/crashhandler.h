// A crash leaves a trace: on a fatal signal the last keys are written to crash.txt beside the
// program, and the program dies of the signal as it would have.
#pragma once

#include <filesystem>

#include "values/crashtrace.h"

namespace duskmarch {

// One at a time; `trace` must outlive it.
class CrashHandler {
 public:
  CrashHandler(const CrashTrace& trace, const std::filesystem::path& folder);
  ~CrashHandler();
  CrashHandler(const CrashHandler&) = delete;
  CrashHandler& operator=(const CrashHandler&) = delete;
};

}  // namespace duskmarch
