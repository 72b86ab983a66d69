#include "campaign/abilitytable.h"

#include <array>

#include "world/tables.h"

namespace duskmarch {
namespace {

constexpr std::array<AbilityRow, abilityrows> table = {{
    {"Dive", 6, 3,
     "Even if you are engaged in a fight, diving lets you move to an adjacent tile.  It can also "
     "be a way to move 1 extra tile on your turn."},
    {"Hook", 8, 4,
     "Moves the hero to that edge of the map, stunning any enemies hit along the way."},
    {"Throw", 6, 3,
     "Throwing a person or table will send them 1 tile in the direction they are thrown.  Any "
     "enemies on that new tile will be dazed when they are hit."},
    {"Dust", 8, 4, "The fighting ability of the target is greatly reduced."},
    {"Kick", 8, 4,
     "The hero moves into the target's tile, pushing them 1 tile further back.  The kicked enemy "
     "will be stunned."},
    {"Smoke bombs", 10, 5,
     "Surrounding tiles fill with smoke, which prevents anyone inside from being shot.  Most "
     "enemies will stop moving once in smoke."},
    {"Pin", 6, 3,
     "Enemies along the map's edge can be pinned, preventing them from moving for a few turns."},
    {"Blast", 10, 5, "A ranged blast causes damage, and can disarm enemies with guns."},
    {"Headbutt", 6, 3,
     "A flat amount of damage is dealt to both the target and the hero.  It's a way to damage "
     "someone regardless of their fighting level."},
    {"Grapnel", 12, 6,
     "The target is grabbed and pulled to the hero's location, injured, and left stunned."},
    {"Shield", 8, 4,
     "A shield is raised which protects the hero, and any allies on the same tile, from incoming "
     "bullets."},
    {"Heal", 12, 6, "Health is restored to the person, but not above their maximum."},
    {"Second wind", 12, 6, "The hero's fighting level rises back to full strength."},
    {"Combo", 10, 5,
     "A normal melee fight is performed, but for this moment the fighting skill of the hero is "
     "doubled."},
    {"Bolas", 6, 3,
     "The target's fighting ability is lowered, until they can free themselves from the net."},
}};

}  // namespace

std::span<const AbilityRow, abilityrows> abilitytable() {
  return table;
}

void learn(Game& game, int hero, std::string_view ability) {
  give(game, hero, ability, 1);
  if (ability == "Blast" && game.mob(hero).gun == 0) game.mob(hero).gun = 8;
}

}  // namespace duskmarch
