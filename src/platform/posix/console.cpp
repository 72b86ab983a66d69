#include "platform/console.h"

namespace duskmarch {

std::vector<std::string> commandline(int count, char** arguments) {
  return {arguments, arguments + count};
}

void usebinarystreams() {}

}  // namespace duskmarch
