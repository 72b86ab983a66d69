#include "platform/console.h"

#include <cstdio>

namespace duskmarch {

std::vector<std::string> commandline(int count, char** arguments) {
  return {arguments, arguments + count};
}

void usebinarystreams() {}

void tellcaller(std::string_view text, Stream stream) {
  const std::string line = std::string(text) + "\n";
  std::fwrite(line.data(), 1, line.size(), stream == Stream::output ? stdout : stderr);
}

}  // namespace duskmarch
