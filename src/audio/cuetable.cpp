#include "audio/cuetable.h"

#include <algorithm>
#include <array>

namespace duskmarch {
namespace {

constexpr CueRow fight(cue::Id id, std::string_view name, int loudness, CueWeight weight,
                       std::string_view meaning) {
  return {id, name, CueKind::fight, loudness, weight, meaning};
}

constexpr CueRow map(cue::Id id, std::string_view name, std::string_view meaning) {
  return {id, name, CueKind::map, 0, CueWeight::event, meaning};
}

using enum CueWeight;

constexpr auto cues = std::to_array<CueRow>({
    fight(cue::step, "step", -700, footstep, "somebody takes a step"),
    fight(cue::targetchosen, "target-chosen", -500, event, "a target is chosen"),
    fight(cue::dive, "dive", -200, event, "a hero dives to the next tile"),
    fight(cue::hook, "hook", -200, event, "a hero is pulled to the edge of the map by a hook"),
    fight(cue::kick, "kick", -100, event, "a kick that pushes somebody back"),
    fight(cue::combo, "combo", -100, event, "a combo of blows"),
    fight(cue::headbutt, "headbutt", -100, event, "a headbutt"),
    fight(cue::dust, "dust", -200, event, "dust is thrown into somebody's eyes"),
    fight(cue::pin, "pin", -100, event, "somebody is pinned to the edge of the map"),
    fight(cue::blast, "blast", -100, event, "a blast"),
    fight(cue::bolas, "bolas", -200, event, "bolas wind themselves about somebody"),
    fight(cue::net, "net", -200, event, "a net falls over somebody"),
    fight(cue::grapnel, "grapnel", -200, event, "a grapnel pulls somebody close"),
    fight(cue::smokebombs, "smoke-bombs", -200, event, "smoke bombs burst"),
    fight(cue::smokegone, "smoke-gone", -600, event, "smoke is blown away"),
    fight(cue::shield, "shield", -200, event, "a shield is raised"),
    fight(cue::heal, "heal", -300, event, "somebody is healed"),
    fight(cue::secondwind, "second-wind", -200, event, "a hero gets a second wind"),
    fight(cue::tableflipped, "table-flipped", -100, event, "a table is flipped over"),
    fight(cue::tablethrown, "table-thrown", -400, event, "a table is thrown"),
    fight(cue::tablelanded, "table-landed", -100, event, "a thrown table comes down and breaks"),
    fight(cue::chairthrown, "chair-thrown", -300, event, "a chair is thrown"),
    fight(cue::chairlanded, "chair-landed", -200, event, "a thrown chair comes down"),
    fight(cue::personthrown, "person-thrown", -300, event, "a person is thrown"),
    fight(cue::personlanded, "person-landed", -100, event, "a thrown person comes down"),
    fight(cue::gunloaded, "gun-loaded", -200, event, "a gun is loaded"),
    fight(cue::gunaimed, "gun-aimed", -200, event, "a gun is aimed"),
    fight(cue::gunfired, "gun-fired", 0, event, "a gun is fired"),
    fight(cue::gunhitperson, "gun-hit-person", 0, event, "a bullet hits a person"),
    fight(cue::gunhitcover, "gun-hit-cover", -100, event, "a bullet hits a table or a shield"),
    fight(cue::gunmissed, "gun-missed", -300, event, "a bullet hits nothing"),
    fight(cue::hithero, "hit-hero", 0, herohurt, "a hero is hurt"),
    fight(cue::hitenemy, "hit-enemy", -200, event, "an enemy is hurt"),
    fight(cue::blowblocked, "blow-blocked", -400, event, "a blow that hurts nobody"),
    fight(cue::herodown, "hero-down", 0, herohurt, "a hero falls"),
    fight(cue::enemydown, "enemy-down", -100, outcome, "an enemy falls"),
    fight(cue::dazed, "dazed", -200, event, "somebody is dazed"),
    fight(cue::freeagain, "free-again", -300, event, "somebody is free again"),
    fight(cue::newcomer, "newcomer", -200, outcome, "a newcomer arrives"),
    fight(cue::heroesturn, "heroes-turn", -300, outcome, "the heroes' turn begins"),
    fight(cue::victory, "victory", 0, outcome, "the mission is won"),
    fight(cue::defeat, "defeat", 0, outcome, "the mission is lost"),
    map(cue::tilehero, "tile-hero", "the cursor is on a hero"),
    map(cue::tileenemy, "tile-enemy", "the cursor is on an enemy"),
    map(cue::tileboth, "tile-both", "the cursor is on heroes and enemies"),
    map(cue::tilefurniture, "tile-furniture", "the cursor is on furniture"),
    map(cue::tilesmoke, "tile-smoke", "the cursor is on smoke"),
    map(cue::tileempty, "tile-empty", "the cursor is on an empty tile"),
    map(cue::mapedge, "map-edge", "the cursor is stopped by the edge of the map"),
});

static_assert(cues.size() == cue::count);
static_assert([] {
  for (std::size_t n = 0; n < cues.size(); ++n) {
    if (cues[n].id != n) return false;
  }
  return true;
}());

constexpr auto loops = std::to_array<AmbienceRow>({
    {"menus-and-hideout", 0, "rain on the roof of the hideout"},
    {"tattoo-parlor", 0, "rain and a neon sign at the tattoo parlor"},
    {"pool-hall", 0, "the room of the pool hall"},
    {"dock", 0, "wind and water at the dock"},
});

template <class Rows>
auto* find(const Rows& rows, std::string_view name) {
  const auto row = std::ranges::find_if(rows, [&](const auto& r) { return r.name == name; });
  return row == rows.end() ? nullptr : &*row;
}

}  // namespace

std::span<const CueRow> cuetable() {
  return cues;
}

std::span<const AmbienceRow> ambiencetable() {
  return loops;
}

const CueRow& cuerow(cue::Id id) {
  return cues[id];
}

const CueRow* findcue(std::string_view name) {
  return find(cues, name);
}

const AmbienceRow* findambience(std::string_view name) {
  return find(loops, name);
}

std::string fileof(const CueRow& cue) {
  return "/sounds/cues/" + std::string(cue.name) + ".wav";
}

std::string fileof(const AmbienceRow& ambience) {
  return "/sounds/ambience/" + std::string(ambience.name) + ".wav";
}

}  // namespace duskmarch
