#include "campaign/creationbonuses.h"

namespace duskmarch {
namespace {

constexpr std::array<BonusGroup, 3> groups = {{
    {"First bonus",
     {{
         {"Agility",
          "Helps your vigilante duck out of bad situations or get into the fight quicker.",
          {"Dive", "Kick"}},
         {"Combat",
          "Makes this vigilante more brutal in hand-to-hand combat.",
          {"Headbutt", "Combo"}},
         {"Holding",
          "Sometimes you want to keep enemies right where they are, or limit their abilities.",
          {"Pin", "Bolas"}},
     }}},
    {"Second bonus",
     {{
         {"Shadow",
          "Why fight fair when you can blind or sneak up on your enemies?",
          {"Dust", "Smoke bombs"}},
         {"Fists and feet",
          "It all comes down to fists in faces and boots up places.",
          {"Kick", "Combo"}},
         {"Travel", "Closing distances can be very important.", {"Hook", "Dive"}},
     }}},
    {"Third bonus",
     {{
         {"Techno", "Some problems are solved with an energy blast.", {"Blast", "Combo"}},
         {"Defence", "Protecting yourself and your team is a nobel act.", {"Shield", "Heal"}},
         {"Strength", "Physical strength has many benefits in close combat.", {"Throw", "Combo"}},
     }}},
}};

}  // namespace

const BonusGroup& bonusgroup(Bonuses which) {
  return groups[static_cast<std::size_t>(which)];
}

}  // namespace duskmarch
