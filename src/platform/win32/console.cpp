#include "platform/console.h"

#include <cstdio>
#include <memory>

#include <fcntl.h>
#include <io.h>
#include <windows.h>

#include "platform/win32/text.h"

namespace duskmarch {

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

}  // namespace duskmarch
