// What a character is called that makes no sound of its own in a text.
#pragma once

#include <array>
#include <string_view>

namespace duskmarch {

struct CharacterName {
  char32_t character;
  std::string_view name;
};

inline constexpr auto characternames = std::to_array<CharacterName>({
    {U' ', "space"},
    {U'!', "exclamation mark"},
    {U'"', "quote"},
    {U'#', "number sign"},
    {U'$', "dollar"},
    {U'%', "percent"},
    {U'&', "and sign"},
    {U'\'', "apostrophe"},
    {U'(', "open parenthesis"},
    {U')', "close parenthesis"},
    {U'*', "star"},
    {U'+', "plus"},
    {U',', "comma"},
    {U'-', "hyphen"},
    {U'.', "full stop"},
    {U'/', "slash"},
    {U':', "colon"},
    {U';', "semicolon"},
    {U'<', "less than"},
    {U'=', "equals"},
    {U'>', "greater than"},
    {U'?', "question mark"},
    {U'@', "at sign"},
    {U'[', "open bracket"},
    {U'\\', "backslash"},
    {U']', "close bracket"},
    {U'^', "caret"},
    {U'_', "underscore"},
    {U'`', "grave accent"},
    {U'{', "open brace"},
    {U'|', "vertical bar"},
    {U'}', "close brace"},
    {U'~', "tilde"},
    {U'\u00A0', "space"},
    {U'\u00A1', "inverted exclamation mark"},
    {U'\u00A6', "broken bar"},
    {U'\u00AB', "open quote"},
    {U'\u00AF', "macron"},
    {U'\u00B4', "acute accent"},
    {U'\u00B7', "middle dot"},
    {U'\u00B8', "cedilla"},
    {U'\u00BB', "close quote"},
    {U'\u00BF', "inverted question mark"},
    {U'\u2010', "hyphen"},
    {U'\u2011', "hyphen"},
    {U'\u2013', "dash"},
    {U'\u2014', "dash"},
    {U'\u2018', "open quote"},
    {U'\u2019', "apostrophe"},
    {U'\u201A', "open quote"},
    {U'\u201C', "open quote"},
    {U'\u201D', "close quote"},
    {U'\u201E', "open quote"},
    {U'\u2020', "dagger"},
    {U'\u2022', "bullet"},
    {U'\u2026', "dots"},
    {U'\u2039', "open quote"},
    {U'\u203A', "close quote"},
});

}  // namespace duskmarch
