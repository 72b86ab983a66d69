#include "../../refusedcalls.h"

#include <cerrno>

#include <sys/syscall.h>
#include <unistd.h>

// In place of the C library's.
extern "C" int fsync(int file) {
  if (!duskmarch::refused::synchronizing) return static_cast<int>(syscall(SYS_fsync, file));
  errno = EIO;
  return -1;
}

extern "C" int close(int file) {
  const auto result = static_cast<int>(syscall(SYS_close, file));
  if (!duskmarch::refused::closing) return result;
  errno = EIO;
  return -1;
}
