// Texts on a line of a script or a transcript: backslash, tab, carriage return and line feed are
// written as a backslash and a letter.
#pragma once

#include <string>
#include <string_view>

namespace duskmarch {

void appendescaped(std::string& out, std::string_view text);
std::string escaped(std::string_view text);
// The reverse; a backslash before anything else stands for itself.
std::string unescaped(std::string_view text);

}  // namespace duskmarch
