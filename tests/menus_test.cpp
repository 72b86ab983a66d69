#include "campaign/menus.h"

#include "campaignkeys.h"

namespace duskmarch {
namespace {

TEST(Cycleme, MovesAndKeepsToTheList) {
  struct Step {
    int position, keycode, entries;
    Ends ends;
    int arrives;
  };
  const Step steps[] = {
      {1, key::up, 4, Ends::wrap, 4},    {4, key::down, 4, Ends::wrap, 1},
      {2, key::left, 4, Ends::wrap, 1},  {2, key::right, 4, Ends::wrap, 3},
      {0, key::r, 4, Ends::wrap, 4},     {7, key::r, 4, Ends::wrap, 1},
      {1, key::up, 4, Ends::stop, 1},    {4, key::down, 4, Ends::stop, 4},
      {1, key::up, 4, Ends::open, 0},    {4, key::down, 4, Ends::open, 5},
      {98, key::down, 4, Ends::open, 4}, {98, key::down, 120, Ends::wrap, 120},
  };
  Player player;
  for (const Step& step : steps) {
    player.game().menupos = step.position;
    const auto sounds =
        player.during([&] { cycleme(player.game(), step.keycode, step.entries, step.ends); });
    EXPECT_EQ(player.game().menupos, step.arrives) << step.position << " by " << step.keycode;
    EXPECT_EQ(sounds.size(), step.keycode == key::r ? 0u : 1u);
  }
}

TEST(OptionsMenu, ExplainsAbilitiesAndNothingElse) {
  Player player;
  player.game().menuname = screen::options;
  player.game().list2 = {"Hook", "Throw chair", "Dust Ann", "Net Ann", "Flip table", "Target Ann"};
  expectspoken(player,
               {{key::down,
                 "Hook.  Moves the hero to that edge of the map, stunning any enemies hit along "
                 "the way."},
                {key::down,
                 "Throw chair.  Throwing a person or table will send them 1 tile in the direction "
                 "they are thrown.  Any enemies on that new tile will be dazed when they are hit."},
                {key::down, "Dust Ann.  The fighting ability of the target is greatly reduced."},
                {key::down, "Net Ann"},
                {key::escape, "Net Ann"},
                {key::down, "Flip table"},
                {key::down, "Target Ann"}});
  player.game().list2.clear();
  for (const int keycode : {key::enter, key::r, key::escape, key::up}) {
    expectspoken(player, {{keycode,
                           "No more options this turn.  Press N to cycle to another character, or "
                           "press E to end your turn."}});
  }
}

}  // namespace
}  // namespace duskmarch
