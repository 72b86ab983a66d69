#include "platform/qt/crashhandler.h"

#include <array>
#include <csignal>
#include <string>

#include <fcntl.h>
#include <unistd.h>

namespace duskmarch {

namespace {

constexpr std::array fatal = {SIGSEGV, SIGABRT, SIGBUS, SIGFPE, SIGILL};

// All that a handler of a fatal signal can reach, made ready beforehand: it may call next to
// nothing, and the stack may be what is broken.
const CrashTrace* keptkeys = nullptr;
std::string tracefile;
std::array<char, 1 << 16> ownstack;

void writetrace(int signal) {
  const int file = open(tracefile.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644);
  if (file != -1) {
    keptkeys->writeto([file](const char* data, std::size_t size) {
      [[maybe_unused]] const auto written = write(file, data, size);
    });
    close(file);
  }
  raise(signal);  // which has its default effect again
}

}  // namespace

CrashHandler::CrashHandler(const CrashTrace& trace, const std::filesystem::path& folder) {
  keptkeys = &trace;
  tracefile = folder / crashfile;
  stack_t stack{};
  stack.ss_sp = ownstack.data();
  stack.ss_size = ownstack.size();
  sigaltstack(&stack, nullptr);
  struct sigaction action {};
  action.sa_handler = writetrace;
  action.sa_flags = SA_ONSTACK | SA_NODEFER | static_cast<int>(SA_RESETHAND);
  for (const int signal : fatal) sigaction(signal, &action, nullptr);
}

CrashHandler::~CrashHandler() {
  for (const int signal : fatal) std::signal(signal, SIG_DFL);
}

}  // namespace duskmarch
