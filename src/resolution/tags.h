// The bracketed tags in `action`, `status` and `tilefx`. Each copy of a condition stands for one
// more end of turn. All tag strings are read and changed through these few calls.
#pragma once

#include <string>
#include <string_view>

namespace duskmarch {

namespace tag {
// Planned actions.
inline constexpr std::string_view fight = "[Fight]";
inline constexpr std::string_view shield = "[Shield]";
inline constexpr std::string_view reload = "[Reload]";
inline constexpr std::string_view loaded = "[Loaded]";
inline constexpr std::string_view shootopening = "[Shoot,";  // then column, comma, row, bracket
// Conditions.
inline constexpr std::string_view dazed = "[Dazed]";
inline constexpr std::string_view netted = "[Netted]";
inline constexpr std::string_view pinned = "[Pinned]";
// Tiles.
inline constexpr std::string_view smoke = "[Smoke]";
inline constexpr std::string_view table = "[Table]";
}  // namespace tag

inline bool hastag(std::string_view tags, std::string_view tag) {
  return tags.find(tag) != std::string_view::npos;
}
void addtag(std::string& tags, std::string_view tag, int copies = 1);
// Removes the first copy, if there is one.
void removetag(std::string& tags, std::string_view tag);
void removeeverytag(std::string& tags, std::string_view tag);
void replaceeverytag(std::string& tags, std::string_view tag, std::string_view replacement);

}  // namespace duskmarch
