// The game in its window.
#include <filesystem>
#include <string>

#include <windows.h>

#include "game.h"
#include "platform/commandline.h"
#include "platform/console.h"
#include "platform/gamefolders.h"
#include "platform/win32/com.h"
#include "platform/win32/crashhandler.h"
#include "platform/win32/frontend.h"

namespace {

std::filesystem::path programfolder() {
  std::wstring program(MAX_PATH, L'\0');
  for (;;) {
    const DWORD size =
        GetModuleFileNameW(nullptr, program.data(), static_cast<DWORD>(program.size()));
    if (size < program.size()) {
      program.resize(size);
      return std::filesystem::path(program).parent_path();
    }
    program.resize(2 * program.size());
  }
}

// The game from its window to its end.
int play(int how) {
  const duskmarch::ComThread com(COINIT_APARTMENTTHREADED);
  const duskmarch::GameFolders folders(programfolder());
  duskmarch::FrontEnd frontend(folders);
  duskmarch::Game game(frontend.desktop());
  const duskmarch::CrashHandler crashhandler(game.trace, folders.files());
  return frontend.run(game, how);
}

}  // namespace

int WINAPI wWinMain(HINSTANCE, HINSTANCE, PWSTR, int how) {
  if (const auto status = duskmarch::answerarguments(duskmarch::commandline(0, nullptr))) {
    return *status;
  }
  const int status = play(how);
  // A thread may still wait for a frozen device, voice or screen reader: the system's libraries
  // must neither be taken down under it nor wait for it.
  TerminateProcess(GetCurrentProcess(), static_cast<UINT>(status));
  return status;
}
