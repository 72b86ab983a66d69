#include "platform/win32/crashhandler.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <csignal>
#include <cstdint>
#include <cwchar>
#include <string>
#include <string_view>
#include <thread>

// First, for the next one builds upon it.
#include <windows.h>
// What a debugger is told.
#include <dbghelp.h>

#include "platform/win32/openfile.h"

namespace duskmarch {

namespace {

constexpr auto dumpfile = "crash.dmp";
// How long the dump may take: what reads the program may be what is broken.
constexpr DWORD dumplimit = 30000;
// What is kept of the stack for one that has used it up.
constexpr ULONG stackleft = 1U << 16;
// As the system's own library ends a program that gives up.
constexpr UINT gaveup = 3;

// All that can be reached once something is broken, made ready beforehand: no memory is to be had
// then, perhaps, and little of the stack.
struct Prepared {
  const CrashTrace* keys = nullptr;
  std::array<wchar_t, 1 << 15> folder{};
  HANDLE wanted = nullptr;   // the dump
  HANDLE written = nullptr;  // or not to be had
  std::atomic<bool> leaving = false;
  EXCEPTION_POINTERS* error = nullptr;
  DWORD thread = 0;  // that has it
  std::atomic<bool> crashed = false;
};
Prepared prepared;
std::thread dumper;

using WriteDump = BOOL(WINAPI*)(HANDLE, DWORD, HANDLE, MINIDUMP_TYPE,
                                MINIDUMP_EXCEPTION_INFORMATION*, void*, void*);

// Never more than a try: there is nobody left to tell.
void writewhole(HANDLE file, const char* data, std::size_t size) {
  while (size > 0) {
    DWORD written = 0;
    if (WriteFile(file, data, static_cast<DWORD>(size), &written, nullptr) == 0) return;
    data += written;
    size -= written;
  }
}

// `name` is ASCII.
template <typename Content>
void writefile(const char* name, Content content) {
  static std::array<wchar_t, 1 << 15> path;
  std::size_t size = std::wcslen(prepared.folder.data());
  std::copy_n(prepared.folder.data(), size, path.data());
  for (const char* letter = name; *letter != '\0' && size + 1 < path.size(); ++letter) {
    path.at(size++) = static_cast<wchar_t>(*letter);
  }
  path.at(size) = L'\0';
  const OpenFile file = openforwriting(path.data());
  if (file.isopen() && SetEndOfFile(file.get()) != 0) content(file.get());
}

void writetrace() {
  writefile(crashfile.data(), [](HANDLE file) {
    prepared.keys->writeto(
        [file](const char* data, std::size_t size) { writewhole(file, data, size); });
  });
  prepared.keys->writefilesto([](const char* name, const char* data, std::size_t size) {
    writefile(name, [&](HANDLE file) { writewhole(file, data, size); });
  });
}

WriteDump dumpwriter() {
  const HMODULE library = LoadLibraryExW(L"dbghelp.dll", nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32);
  return reinterpret_cast<WriteDump>(reinterpret_cast<void*>(
      library == nullptr ? nullptr : GetProcAddress(library, "MiniDumpWriteDump")));
}

void writedump() {
  const WriteDump write = dumpwriter();
  if (write == nullptr) return;
  writefile(dumpfile, [write](HANDLE file) {
    MINIDUMP_EXCEPTION_INFORMATION error{prepared.thread, prepared.error, FALSE};
    write(GetCurrentProcess(), GetCurrentProcessId(), file, MiniDumpNormal,
          prepared.error != nullptr ? &error : nullptr, nullptr, nullptr);
  });
}

// On a thread of its own, which has a stack.
void awaitcrash() {
  WaitForSingleObject(prepared.wanted, INFINITE);
  if (prepared.leaving) return;
  writedump();
  SetEvent(prepared.written);
}

// Another thread may crash while this one writes.
void leavetrace(EXCEPTION_POINTERS* error) {
  if (prepared.crashed.exchange(true)) Sleep(dumplimit);
  writetrace();
  prepared.error = error;
  prepared.thread = GetCurrentThreadId();
  SetEvent(prepared.wanted);
  WaitForSingleObject(prepared.written, dumplimit);
}

LONG WINAPI unhandled(EXCEPTION_POINTERS* error) {
  leavetrace(error);
  return EXCEPTION_CONTINUE_SEARCH;
}

// Left to itself, the system's library would ask the player to press a button first.
void aborted(int /*signal*/) {
  leavetrace(nullptr);
  TerminateProcess(GetCurrentProcess(), gaveup);
}

}  // namespace

CrashHandler::CrashHandler(const CrashTrace& trace, const std::filesystem::path& filesfolder) {
  const std::wstring folder = filesfolder.wstring() + L"\\";
  const std::size_t room = prepared.folder.size() - 1;
  prepared.folder.at(folder.copy(prepared.folder.data(), room)) = L'\0';
  prepared.keys = &trace;
  prepared.leaving = prepared.crashed = false;
  prepared.wanted = CreateEventW(nullptr, TRUE, FALSE, nullptr);
  prepared.written = CreateEventW(nullptr, TRUE, FALSE, nullptr);
  dumper = std::thread(awaitcrash);
  ULONG stack = stackleft;
  SetThreadStackGuarantee(&stack);
  SetUnhandledExceptionFilter(unhandled);
  std::signal(SIGABRT, aborted);
}

CrashHandler::~CrashHandler() {
  SetUnhandledExceptionFilter(nullptr);
  std::signal(SIGABRT, SIG_DFL);
  prepared.leaving = true;
  SetEvent(prepared.wanted);
  dumper.join();
  CloseHandle(prepared.wanted);
  CloseHandle(prepared.written);
}

}  // namespace duskmarch
