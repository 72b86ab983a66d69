// What a knockout earns.
#pragma once

#include "game.h"

namespace duskmarch {

// Somebody was knocked out by `mob`: a hero earns a point for it.
inline void creditknockout(Mob& mob) {
  if (mob.aliance == aliance::heroes) mob.earnedpoints += 1;
}

}  // namespace duskmarch
