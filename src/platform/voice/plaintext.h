// Texts made safe for a speech engine.
#pragma once

#include <string>
#include <string_view>

namespace duskmarch {

// `text` with a space for each control or unassigned character but the line feed, and for each byte
// that belongs to no UTF-8 character. To an engine they are commands or the end of the text, or
// lead it astray in its memory.
std::string plaintext(std::string_view text);

// What an engine is given to say `text`: the plain text, or, of a text that is nothing but one
// space or one mark, its name. Engines pass over it, and a page or a field is read by characters
// too.
std::string sayabletext(std::string_view text);

}  // namespace duskmarch
