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

}  // namespace
}  // namespace duskmarch
