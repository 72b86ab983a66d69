#include "audio/cuetable.h"

#include <algorithm>
#include <array>

namespace duskmarch {
namespace {

constexpr CueRow fight(std::string_view name, int loudness, CueWeight weight,
                       std::string_view meaning) {
  return {name, CueKind::fight, loudness, weight, meaning};
}

constexpr CueRow map(std::string_view name, std::string_view meaning) {
  return {name, CueKind::map, 0, CueWeight::event, meaning};
}

using enum CueWeight;

constexpr auto cues = std::to_array<CueRow>({
    fight("step", -700, footstep, "somebody takes a step"),
    fight("target-chosen", -500, event, "a target is chosen"),
    fight("dive", -200, event, "a hero dives to the next tile"),
    fight("hook", -200, event, "a hero is pulled to the edge of the map by a hook"),
    fight("kick", -100, event, "a kick that pushes somebody back"),
    fight("combo", -100, event, "a combo of blows"),
    fight("headbutt", -100, event, "a headbutt"),
    fight("dust", -200, event, "dust is thrown into somebody's eyes"),
    fight("pin", -100, event, "somebody is pinned to the edge of the map"),
    fight("blast", -100, event, "a blast"),
    fight("bolas", -200, event, "bolas wind themselves about somebody"),
    fight("net", -200, event, "a net falls over somebody"),
    fight("grapnel", -200, event, "a grapnel pulls somebody close"),
    fight("smoke-bombs", -200, event, "smoke bombs burst"),
    fight("smoke-gone", -600, event, "smoke is blown away"),
    fight("shield", -200, event, "a shield is raised"),
    fight("heal", -300, event, "somebody is healed"),
    fight("second-wind", -200, event, "a hero gets a second wind"),
    fight("table-flipped", -100, event, "a table is flipped over"),
    fight("table-thrown", -400, event, "a table is thrown"),
    fight("table-landed", -100, event, "a thrown table comes down and breaks"),
    fight("chair-thrown", -300, event, "a chair is thrown"),
    fight("chair-landed", -200, event, "a thrown chair comes down"),
    fight("person-thrown", -300, event, "a person is thrown"),
    fight("person-landed", -100, event, "a thrown person comes down"),
    fight("gun-loaded", -200, event, "a gun is loaded"),
    fight("gun-aimed", -200, event, "a gun is aimed"),
    fight("gun-fired", 0, event, "a gun is fired"),
    fight("gun-hit-person", 0, event, "a bullet hits a person"),
    fight("gun-hit-cover", -100, event, "a bullet hits a table or a shield"),
    fight("gun-missed", -300, event, "a bullet hits nothing"),
    fight("hit-hero", 0, herohurt, "a hero is hurt"),
    fight("hit-enemy", -200, event, "an enemy is hurt"),
    fight("blow-blocked", -400, event, "a blow that hurts nobody"),
    fight("hero-down", 0, herohurt, "a hero falls"),
    fight("enemy-down", -100, outcome, "an enemy falls"),
    fight("dazed", -200, event, "somebody is dazed"),
    fight("free-again", -300, event, "somebody is free again"),
    fight("newcomer", -200, outcome, "a newcomer arrives"),
    fight("heroes-turn", -300, outcome, "the heroes' turn begins"),
    fight("victory", 0, outcome, "the mission is won"),
    fight("defeat", 0, outcome, "the mission is lost"),
    map("tile-hero", "the cursor is on a hero"),
    map("tile-enemy", "the cursor is on an enemy"),
    map("tile-both", "the cursor is on heroes and enemies"),
    map("tile-furniture", "the cursor is on furniture"),
    map("tile-smoke", "the cursor is on smoke"),
    map("tile-empty", "the cursor is on an empty tile"),
    map("map-edge", "the cursor is stopped by the edge of the map"),
});

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
