// The program's text files: one value a line, lines ended by CR LF, a number with one space (or a
// minus sign) before it and one space after it, a value never set as an empty line.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "values/number.h"

namespace duskmarch {

inline constexpr std::size_t largesttextfile = 1U << 20;  // bytes; a larger one is refused

// The lines of what a file held, read with or without the CR; a last line without its end counts.
std::vector<std::string> splitlines(std::string_view text);

// " 5 ", "-3 ", or an empty text for a number never set.
std::string numberline(Number number);
// A whole number with spaces around it; a line of nothing but spaces is a number never set;
// nothing for any other line and for numbers beyond Number::limit.
std::optional<Number> parsenumberline(std::string_view line);

// `text` without the spaces at both its ends.
std::string_view trim(std::string_view text);

}  // namespace duskmarch
