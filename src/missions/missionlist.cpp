#include "missions/missionlist.h"

#include <algorithm>
#include <array>

namespace duskmarch {

// Each stands in the file of its name.
extern const Mission mission0, mission1, mission2, mission3;

namespace {

constexpr std::array missions = {&mission0, &mission1, &mission2, &mission3};

}  // namespace

const Mission* findmission(int number) {
  const auto found = std::ranges::find(missions, number, &Mission::number);
  return found == missions.end() ? nullptr : *found;
}

}  // namespace duskmarch
