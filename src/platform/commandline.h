// What both programs answer on their command line instead of playing.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace duskmarch {

inline constexpr int badarguments = 2;  // the exit status

// What the program called `name` says to `argument`, if that asks for its version ("--version") or
// for `help` ("--help").
std::optional<std::string> informationfor(std::string_view argument, std::string_view name,
                                          std::string_view help);
// The sentence about an argument that is not known.
std::string unknownargument(std::string_view argument);

// Answers the arguments of the program with the window, whose own name is first in `words`. The
// status to exit with; nothing where there are no arguments, so that it plays.
std::optional<int> answerarguments(const std::vector<std::string>& words);

}  // namespace duskmarch
