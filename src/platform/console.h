// What a program that is run from a command line asks of the system.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace duskmarch {

// The program's arguments in UTF-8, its own name first; `count` and `arguments` are those of
// main(), and not looked at on Windows.
std::vector<std::string> commandline(int count, char** arguments);
// The standard streams pass bytes on as they are. To be called before any is used.
void usebinarystreams();

enum class Stream { output, errors };
// Writes `text` and the end of a line where whoever started the program reads it. A program of
// Windows that has no console shows a box if it was not started from one.
void tellcaller(std::string_view text, Stream stream);

}  // namespace duskmarch
