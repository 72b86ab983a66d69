#include "world/furniture.h"

#include "world/narration.h"
#include "world/tables.h"

namespace duskmarch {

std::string chairthrown(const Mob& thrower, const Direction& direction) {
  return sentence({thrower.mobname, " grabs a chair and hurls it ", direction.word, ".  "});
}

std::string chairhit(const Mob& victim) {
  std::string line = sentence(
      {victim.mobname, " was hit by it and suffered ", std::to_string(chairdamage), " damage.  "});
  if (!conscious(victim)) line += victim.mobname + " was knocked unconscious by the impact.  ";
  return line;
}

}  // namespace duskmarch
