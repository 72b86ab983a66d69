// Ctrl+C and its like, as a call on the window's thread.
#pragma once

#include <QSocketNotifier>
#include <functional>

namespace duskmarch {

// While it lives, the first such signal calls `ended`; a second one kills the program, in case it
// hangs.
class TerminationSignals {
 public:
  explicit TerminationSignals(std::function<void()> ended);
  TerminationSignals(const TerminationSignals&) = delete;
  TerminationSignals& operator=(const TerminationSignals&) = delete;
  ~TerminationSignals();

 private:
  QSocketNotifier arrival_;
};

}  // namespace duskmarch
