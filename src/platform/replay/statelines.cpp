#include "platform/replay/statelines.h"

#include <algorithm>
#include <string>

#include "world/tables.h"

namespace duskmarch {

namespace {

std::string pair(std::string_view name, std::string_view value) {
  return std::string(name) + "=" + std::string(value);
}

std::string pair(std::string_view name, int value) {
  return pair(name, std::to_string(value));
}

void writeglobals(const Game& game, Transcript& out) {
  out.event("version", game.version);
  out.event("menuname", game.menuname);
  out.event("menupos", game.menupos);
  out.event("missionnumber", int{game.missionnumber});
  out.event("turnnumber", game.turnnumber);
  out.event("objective", game.objective);
  out.event("storyword", game.storyword);
  out.event("selected", game.selected);
  out.event("cursormode", game.cursormode);
  out.event("cursorx", game.cursorx);
  out.event("cursory", game.cursory);
  out.event("mapwidth", game.mapwidth);
  out.event("mapheight", game.mapheight);
  out.event("mobcount", game.mobcount);
  out.event("itemcount", game.itemcount);
  out.event("reportedmob", game.reportedmob);
  out.event("bonus1", game.bonus1);
  out.event("bonus2", game.bonus2);
  out.event("bonus3", game.bonus3);
  out.event("speechmode", game.speechmode);
  out.event("sapirate", game.sapirate);
  out.event("reviewpos", game.reviewpos);
  out.event("nextbuffer", game.nextbuffer);
  out.event("turnsummary", game.turnsummary);
  out.event("summarytext", game.summarylabel.text());
  out.event("storytext", game.storylabel);
  out.event("command3", game.command3);
}

void writemob(const Mob& mob, int slot, Transcript& out) {
  out.event("mob", slot, pair("mobname", mob.mobname), pair("gender", mob.gender),
            pair("aliance", mob.aliance), pair("mobtype", mob.mobtype), pair("health", mob.health),
            pair("maxhealth", mob.maxhealth), pair("mobx", mob.mobx), pair("moby", mob.moby),
            pair("startx", mob.startx), pair("starty", mob.starty), pair("action", mob.action),
            pair("status", mob.status), pair("reserve", mob.reserve),
            pair("maxreserve", mob.maxreserve), pair("fight", mob.fight),
            pair("maxfight", mob.maxfight), pair("gun", mob.gun), pair("reserve2", mob.reserve2),
            pair("engaged", mob.engaged), pair("target", mob.target),
            pair("earnedpoints", mob.earnedpoints), pair("rested", mob.rested),
            pair("hasmoved", mob.hasmoved), pair("hasacted", mob.hasacted),
            pair("spawntime", mob.spawntime), pair("spawntext", mob.spawntext),
            pair("upgradepoints", mob.upgradepoints));
  for (int k = 1; k <= mob.abilitycount; ++k) {
    const Ability& ability = mob.abilities[static_cast<std::size_t>(k)];
    out.event("ability", slot, k, pair("abilityname", ability.abilityname),
              pair("abilityuses", ability.abilityuses), pair("abilityextra", ability.abilityextra));
  }
}

void writeitem(const Item& item, int slot, Transcript& out) {
  out.event("item", slot, pair("itemname", item.itemname), pair("itemx", item.itemx),
            pair("itemy", item.itemy), pair("itemhealth", item.itemhealth),
            pair("itemmaxhealth", item.itemmaxhealth));
}

void writetiles(const Game& game, Transcript& out) {
  for (int x = 0; x < gridsize; ++x) {
    for (int y = 0; y < gridsize; ++y) {
      if (const std::string& tags = tiletags(game, x, y); !tags.empty()) {
        out.event("tile", x, y, tags);
      }
    }
  }
}

template <typename List>
void writelist(std::string_view name, const List& lines, Transcript& out) {
  for (int n = 0; const std::string& line : lines) out.event(name, n++, line);
}

}  // namespace

void writestate(const Game& game, Transcript& out) {
  writeglobals(game, out);
  for (int slot = 1; slot <= std::max(heroslots, game.mobcount); ++slot) {
    writemob(game.mob(slot), slot, out);
  }
  for (int slot = 1; slot <= game.itemcount; ++slot) writeitem(game.item(slot), slot, out);
  writetiles(game, out);
  writelist("option", game.list2, out);
  writelist("log", game.list1, out);
}

}  // namespace duskmarch
