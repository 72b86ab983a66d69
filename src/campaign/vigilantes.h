// The vigilantes in words, outside missions.
#pragma once

#include <string>

#include "game.h"

namespace duskmarch {

// Whom the creation, upgrade or hideout menu is about, with the abilities that the present bonuses
// would give or the points to spend; empty where it is nobody.
std::string vigilantewords(Game& game);

// Whoever is being created.
std::string newcomerwords(Game& game);

}  // namespace duskmarch
