// The game in its window.
#include <filesystem>
#include <string>

#include <windows.h>

#include "game.h"
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

}  // namespace

int WINAPI wWinMain(HINSTANCE, HINSTANCE, PWSTR, int how) {
  const duskmarch::ComThread com(COINIT_APARTMENTTHREADED);
  const std::filesystem::path folder = programfolder();
  duskmarch::FrontEnd frontend(folder);
  duskmarch::Game game(frontend.desktop());
  const duskmarch::CrashHandler crashhandler(game.trace, folder);
  return frontend.run(game, how);
}
