// What a walk through the menus and a creation, as in the transcripts, does not come to.
#include "campaign/menus.h"

#include "campaignkeys.h"

namespace duskmarch {
namespace {

TEST(Creation, ANameIsTakenInAnyLetterCase) {
  Player player;
  perform(player, 1);
  recruit(player, 1, "Älva");
  player.game().missionnumber = 2;
  EXPECT_EQ(recruit(player, 2, "äLVA"), Spoken{"This name has already been used."});
  player.press(key::escape, modifier::shift);  // half made
  perform(player, 1);
  EXPECT_EQ(reach(player, 2), Spoken{"Press Enter to recruit your second vigilante."});
  EXPECT_EQ(recruit(player, 2, "Alva"), Spoken{"Alva recruited.  Back at the hideout."});
}

TEST(Creation, WhoeverWasNeverAskedIsAMan) {
  Player player;
  perform(player, 1);
  perform(player, 1);
  player.press(key::escape);  // to the entry that finishes
  player.press(key::enter);
  EXPECT_EQ(player.game().mob(1).gender, gender::male);
}

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
