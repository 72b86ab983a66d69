#include "platform/qt/terminationsignals.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <utility>

#include <fcntl.h>
#include <unistd.h>

namespace duskmarch {

namespace {

constexpr std::array terminating = {SIGINT, SIGTERM, SIGHUP};

// A handler may do next to nothing but write to a pipe, and can reach only what is global.
std::array<int, 2> pipeends = {-1, -1};

void wake(int) {
  const int error = errno;
  [[maybe_unused]] const auto written = write(pipeends[1], "!", 1);
  errno = error;
}

int openpipe() {
  return pipe2(pipeends.data(), O_CLOEXEC | O_NONBLOCK) == 0 ? pipeends[0] : -1;
}

}  // namespace

TerminationSignals::TerminationSignals(std::function<void()> ended)
    : arrival_(openpipe(), QSocketNotifier::Read) {
  QObject::connect(&arrival_, &QSocketNotifier::activated, &arrival_,
                   [this, called = std::move(ended)] {
                     arrival_.setEnabled(false);
                     called();
                   });
  struct sigaction action {};
  action.sa_handler = wake;
  action.sa_flags = SA_RESTART | static_cast<int>(SA_RESETHAND);
  for (const int number : terminating) sigaction(number, &action, nullptr);
}

TerminationSignals::~TerminationSignals() {
  for (const int number : terminating) std::signal(number, SIG_DFL);
  arrival_.setEnabled(false);
  for (const int end : pipeends) close(end);
}

}  // namespace duskmarch
