#include "world/narration.h"

#include <array>
#include <cctype>

#include "resolution/tags.h"

namespace duskmarch {

namespace {

struct Pronouns {
  std::string_view subject;
  std::string_view object;
  std::string_view possessive;
};

const Pronouns& pronouns(int gender) {
  static constexpr std::array<Pronouns, 4> table{{
      {},
      {"he", "him", "his"},
      {"she", "her", "her"},
      {"it", "it", "its"},
  }};
  return table[gender >= gender::male && gender <= gender::genderless
                   ? static_cast<std::size_t>(gender)
                   : 0];
}

struct HeroPlaceholders {
  std::string_view heorshe;
  std::string_view himorher;
  std::string_view hisorher;
  std::string_view name;
};

constexpr std::array<HeroPlaceholders, heroslots> placeholders{{
    {"$AHE", "$AHIM", "$AHIS", "$A"},
    {"$BHE", "$BHIM", "$BHIS", "$B"},
    {"$CHE", "$CHIM", "$CHIS", "$C"},
}};

}  // namespace

std::string translate(const Game& game, std::string_view text) {
  std::string translated(text);
  if (text.find('$') == std::string_view::npos) return translated;
  for (int hero = 1; hero <= heroslots; ++hero) {
    const Mob& mob = game.mob(hero);
    const HeroPlaceholders& words = placeholders[static_cast<std::size_t>(hero - 1)];
    replaceeverytag(translated, words.heorshe, heorshe(mob.gender));
    replaceeverytag(translated, words.himorher, himorher(mob.gender));
    replaceeverytag(translated, words.hisorher, hisorher(mob.gender));
    replaceeverytag(translated, words.name, mob.mobname);
  }
  replaceeverytag(translated, "$S", game.storyword);
  return translated;
}

std::string_view heorshe(int gender) {
  return pronouns(gender).subject;
}

std::string_view himorher(int gender) {
  return pronouns(gender).object;
}

std::string_view hisorher(int gender) {
  return pronouns(gender).possessive;
}

std::string insmallletters(std::string_view word) {
  std::string text(word);
  for (char& c : text) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
  return text;
}

std::string sentence(std::initializer_list<std::string_view> parts) {
  std::size_t size = 0;
  for (const std::string_view part : parts) size += part.size();
  std::string text;
  text.reserve(size);
  for (const std::string_view part : parts) text += part;
  return text;
}

}  // namespace duskmarch
