// What a program that is run from a command line asks of the system.
#pragma once

#include <string>
#include <vector>

namespace duskmarch {

// The program's arguments in UTF-8, its own name first; `count` and `arguments` are those of
// main().
std::vector<std::string> commandline(int count, char** arguments);
// The standard streams pass bytes on as they are. To be called before any is used.
void usebinarystreams();

}  // namespace duskmarch
