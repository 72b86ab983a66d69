// Narration texts: the heroes' names and the pronouns.
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

#include "game.h"

namespace duskmarch {

// `text` with "$A", "$AHE", "$AHIM", "$AHIS", the same for "$B" and "$C" (hero slots 1 to 3) and
// "$S" filled in, in that order; "$N" stays.
std::string translate(const Game& game, std::string_view text);

// By a `gender` value; empty for a value that is none.
std::string_view heorshe(int gender);
std::string_view himorher(int gender);
std::string_view hisorher(int gender);

// Plain letters in small ones: "west".
std::string insmallletters(std::string_view word);

// The parts of a sentence, put together.
std::string sentence(std::initializer_list<std::string_view> parts);

}  // namespace duskmarch
