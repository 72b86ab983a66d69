// All missions of the game.
#pragma once

#include "missions/missiontable.h"

namespace duskmarch {

// Null for a number without a mission.
const Mission* findmission(int number);

}  // namespace duskmarch
