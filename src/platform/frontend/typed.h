// What is told of a text while it is typed.
#pragma once

#include <string_view>

namespace duskmarch {

// What was typed to make `now` of `before`, which differ in one place; or what was taken away. Part
// of one of the two.
std::string_view difference(std::string_view before, std::string_view now);

}  // namespace duskmarch
