#include "campaign/menus.h"

#include "campaignkeys.h"

namespace duskmarch {
namespace {

// At ends that no screen has; a walk through the menus is in the transcripts.
TEST(Cycleme, KeepsToTheList) {
  struct Step {
    int position, keycode, entries;
    Ends ends;
    int arrives;
  };
  const Step steps[] = {
      {0, key::r, 4, Ends::wrap, 4},     {7, key::r, 4, Ends::wrap, 1},
      {1, key::up, 4, Ends::stop, 1},    {4, key::down, 4, Ends::stop, 4},
      {1, key::up, 4, Ends::open, 0},    {4, key::down, 4, Ends::open, 5},
      {98, key::down, 4, Ends::open, 4}, {98, key::down, 120, Ends::wrap, 120},
  };
  Player player;
  for (const Step& step : steps) {
    player.game().menupos = step.position;
    cycleme(player.game(), step.keycode, step.entries, step.ends);
    EXPECT_EQ(player.game().menupos, step.arrives) << step.position << " by " << step.keycode;
  }
}

}  // namespace
}  // namespace duskmarch
