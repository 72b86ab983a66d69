#include "platform/console.h"

#include <cstdio>
#include <memory>

#include <fcntl.h>
#include <io.h>
#include <windows.h>

#include "platform/win32/text.h"

namespace duskmarch {

namespace {

bool isopen(HANDLE file) {
  return file != nullptr && file != INVALID_HANDLE_VALUE;
}

// A console would read bytes in a code page of its own.
bool writewords(HANDLE console, const std::wstring& words) {
  DWORD written = 0;
  return WriteConsoleW(console, words.data(), static_cast<DWORD>(words.size()), &written,
                       nullptr) != 0;
}

// To a file, a pipe or a console that the program was given; false where it was given none.
bool writetostream(DWORD stream, std::string_view line) {
  const HANDLE file = GetStdHandle(stream);
  if (!isopen(file) || GetFileType(file) == FILE_TYPE_UNKNOWN) return false;
  DWORD number = 0;
  if (GetConsoleMode(file, &number) != 0) return writewords(file, utf16(line));
  return WriteFile(file, line.data(), static_cast<DWORD>(line.size()), &number, nullptr) != 0;
}

// To the console of the program that started this one; false where that has none.
bool writetoparent(std::string_view line) {
  if (AttachConsole(ATTACH_PARENT_PROCESS) == 0) return false;
  const HANDLE console = CreateFileW(L"CONOUT$", GENERIC_READ | GENERIC_WRITE, FILE_SHARE_WRITE,
                                     nullptr, OPEN_EXISTING, 0, nullptr);
  if (!isopen(console)) return false;
  const bool done =
      writewords(console, L"\r\n" + utf16(line));  // the prompt is there again already
  CloseHandle(console);
  return done;
}

}  // namespace

// main() gets them in the code page, which has no letters for most names.
std::vector<std::string> commandline(int /*count*/, char** /*arguments*/) {
  int count = 0;
  const std::unique_ptr<wchar_t*, decltype(&LocalFree)> words(
      CommandLineToArgvW(GetCommandLineW(), &count), &LocalFree);
  std::vector<std::string> arguments;
  for (int n = 0; n < count; ++n) arguments.push_back(utf8(words.get()[n]));
  return arguments;
}

void usebinarystreams() {
  for (std::FILE* stream : {stdin, stdout, stderr}) _setmode(_fileno(stream), _O_BINARY);
}

void tellcaller(std::string_view text, Stream stream) {
  const bool isoutput = stream == Stream::output;
  const std::string line = std::string(text) + "\n";
  if (writetostream(isoutput ? STD_OUTPUT_HANDLE : STD_ERROR_HANDLE, line) || writetoparent(line)) {
    return;
  }
  MessageBoxW(nullptr, utf16(text).c_str(), L"Duskmarch", isoutput ? MB_OK : MB_ICONERROR);
}

}  // namespace duskmarch
