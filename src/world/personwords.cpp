#include "world/personwords.h"

#include <cctype>

#include "resolution/tags.h"
#include "world/mapspeech.h"
#include "world/narration.h"

namespace duskmarch {

namespace {

int copies(std::string_view tags, std::string_view tag) {
  int count = 0;
  for (auto at = tags.find(tag); at != std::string_view::npos; at = tags.find(tag, at + 1)) ++count;
  return count;
}

// Nets and knives hold until so many ends of turn were quiet ones.
std::string quietturns(std::string_view condition, int turns) {
  return sentence({condition, ", ", counted(turns, "quiet turn"), " to go"});
}

}  // namespace

std::string skillbonus(const Game& game, int slot) {
  const Hundredths value = calcfight2(game, slot);
  return value > Hundredths{} ? " + " + value.text() : "";
}

std::string bodywords(const Game& game, int slot) {
  const Mob& mob = game.mob(slot);
  return sentence({std::to_string(mob.health), " of ", std::to_string(mob.maxhealth),
                   " health, fighting skill ", std::to_string(mob.fight), " of ",
                   std::to_string(mob.maxfight), skillbonus(game, slot)});
}

std::string conditionwords(const Mob& mob, std::string_view opening, std::string_view closing) {
  const int dazed = copies(mob.status, tag::dazed);
  const int netted = copies(mob.status, tag::netted);
  const int pinned = copies(mob.status, tag::pinned);
  std::string words;
  const auto add = [&](const std::string& condition) {
    words += sentence({opening, condition, closing});
  };
  if (dazed > 0) add("dazed for " + counted(dazed, "more turn"));
  if (netted > 0) add(quietturns("netted", netted));
  // The knife comes out after the net.
  if (pinned > 0) add(quietturns("pinned", pinned + netted));
  return words;
}

std::string abilitywords(const Mob& mob) {
  std::string words;
  for (int k = 1; k <= mob.abilitycount; ++k) {
    const Ability& ability = mob.abilities[static_cast<std::size_t>(k)];
    if (ability.abilityuses <= 0) continue;
    words += sentence(
        {words.empty() ? "" : ", ", ability.abilityname, " ", std::to_string(ability.abilityuses)});
  }
  return words;
}

std::string counted(int count, std::string_view thing) {
  return sentence({std::to_string(count), " ", thing, count == 1 ? "" : "s"});
}

std::string capitalized(std::string text) {
  if (!text.empty()) {
    text.front() = static_cast<char>(std::toupper(static_cast<unsigned char>(text.front())));
  }
  return text;
}

}  // namespace duskmarch
