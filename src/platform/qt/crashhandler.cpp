#include "platform/qt/crashhandler.h"

#include <array>
#include <csignal>
#include <utility>

#include <fcntl.h>
#include <unistd.h>

#include "platform/posix/openfile.h"

namespace duskmarch {

namespace {

constexpr std::array fatal = {SIGSEGV, SIGABRT, SIGBUS, SIGFPE, SIGILL};

// All that a handler of a fatal signal can reach, made ready beforehand: it may call next to
// nothing, and the stack may be what is broken.
const CrashTrace* keptkeys = nullptr;
int folder = -1;
std::array<char, 1 << 16> ownstack;

// Never more than a try: there is nobody left to tell.
void writewhole(int file, const char* data, std::size_t size) {
  while (size > 0) {
    const ssize_t written = write(file, data, size);
    if (written <= 0) return;
    data += written;
    size -= static_cast<std::size_t>(written);
  }
}

template <typename Content>
void writefile(const char* name, Content content) {
  const int file = openforwriting(folder, name, 0);
  if (file == -1) return;
  if (ftruncate(file, 0) == 0) content(file);
  close(file);
}

void writetrace(int signal) {
  writefile(crashfile.data(), [](int file) {
    keptkeys->writeto([file](const char* data, std::size_t size) { writewhole(file, data, size); });
  });
  keptkeys->writefilesto([](const char* name, const char* data, std::size_t size) {
    writefile(name, [&](int file) { writewhole(file, data, size); });
  });
  raise(signal);  // which has its default effect again
}

}  // namespace

CrashHandler::CrashHandler(const CrashTrace& trace, const std::filesystem::path& filesfolder) {
  keptkeys = &trace;
  folder = open(filesfolder.c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC);
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
  close(std::exchange(folder, -1));
}

}  // namespace duskmarch
