#include "invariants.h"

#include <string_view>

#include "values/speechrate.h"

namespace duskmarch {

namespace {

bool within(int value, int least, int most) {
  return value >= least && value <= most;
}

// Bracketed words one after the other, and nothing else. A chosen throw holds a name, which may
// hold brackets of its own.
bool wellformedtags(std::string_view tags) {
  return tags.empty() || (tags.front() == '[' && tags.back() == ']');
}

std::string brokenmob(const Mob& mob) {
  if (!within(mob.target, 0, lastslot)) return "the target is no slot";
  if (!within(mob.abilitycount, 0, lastslot)) return "the ability count is out of range";
  if (mob.abilitycount > 0 && mob.abilities.size() <= static_cast<std::size_t>(mob.abilitycount)) {
    return "abilities are counted that do not exist";
  }
  if (!within(mob.mobx, 0, gridsize - 1) || !within(mob.moby, 0, gridsize - 1)) {
    return "the place is off the grid";
  }
  return "";
}

std::string brokentable(const Game& game) {
  if (game.mob(0).health.isset() || !game.mob(0).mobname.empty()) return "slot 0 is somebody";
  if (game.item(0).itemhealth != 0) return "slot 0 is some furniture";
  if (!within(game.mobcount, 0, lastslot)) return "mobcount is out of range";
  if (!within(game.itemcount, 0, lastslot)) return "itemcount is out of range";
  if (!within(game.mapwidth, 0, gridsize - 1) || !within(game.mapheight, 0, gridsize - 1)) {
    return "the map is larger than the grid";
  }
  for (int slot = 1; slot <= game.itemcount; ++slot) {
    if (!within(game.item(slot).itemx, 1, game.mapwidth) ||
        !within(game.item(slot).itemy, 1, game.mapheight)) {
      return "item " + std::to_string(slot) + ": off the map";
    }
  }
  for (const auto& column : game.tilefx) {
    for (const std::string& tags : column) {
      if (!wellformedtags(tags)) return "tile tags are malformed: " + tags;
    }
  }
  return "";
}

std::string brokenscreen(const Game& game) {
  if (!within(game.menuname, screen::map, screen::hideout)) return "menuname is no screen";
  if (!within(game.selected, 1, lastslot)) return "nobody is selected";
  if (!within(game.cursormode, 0, 1)) return "cursormode is neither 0 nor 1";
  if (!within(game.reviewpos, 0, SaidLines::oldest)) return "reviewpos is out of range";
  if (!within(game.speechmode, 0, speechmode::count - 1)) return "there is no such speech mode";
  if (!within(game.sapirate, speechrate::slowest, speechrate::fastest))
    return "the rate is out of range";
  if (!within(game.nextbuffer, 0, soundbuffercount - 1)) return "there is no such buffer";
  return "";
}

}  // namespace

std::string brokeninvariant(const Game& game) {
  if (std::string broken = brokenscreen(game); !broken.empty()) return broken;
  if (std::string broken = brokentable(game); !broken.empty()) return broken;
  for (int slot = 1; slot <= lastslot; ++slot) {
    if (std::string broken = brokenmob(game.mob(slot)); !broken.empty()) {
      return "mob " + std::to_string(slot) + ": " + broken;
    }
  }
  return "";
}

}  // namespace duskmarch
