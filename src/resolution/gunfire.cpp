#include "resolution/gunfire.h"

#include <algorithm>
#include <charconv>
#include <vector>

#include "audio/cues.h"
#include "resolution/smoke.h"
#include "resolution/tags.h"
#include "values/namelist.h"
#include "world/chance.h"
#include "world/directions.h"
#include "world/mapspeech.h"
#include "world/narration.h"
#include "world/whostands.h"

namespace duskmarch {

namespace {

int leadingnumber(std::string_view text) {
  constexpr int limit = Number::limit;
  int value = 0;
  const auto read = std::from_chars(text.data(), text.data() + text.size(), value);
  if (read.ec == std::errc::result_out_of_range) return text.front() == '-' ? -limit : limit;
  return std::clamp(value, -limit, limit);
}

std::string shootingtag(int x, int y) {
  return sentence({tag::shootopening, std::to_string(x), ",", std::to_string(y), "]"});
}

struct Shots {
  std::vector<std::string> hit;
  std::vector<std::string> dead;
  std::vector<std::string> safe;
};

// Bullets know no sides, and a gunman who stands there is hit by its own.
Shots shoot(Game& game, int damage, int x, int y) {
  Shots shots;
  for (Mob& mob : standingon(game, {x, y})) {
    if (hastag(mob.action, tag::shield)) {
      if (shots.safe.empty()) heard(game, cue::gunhitcover, x, y);
      shots.safe.push_back(mob.mobname);
      continue;
    }
    if (shots.hit.empty()) heard(game, cue::gunhitperson, x, y);
    shots.hit.push_back(mob.mobname);
    mob.health -= damage;
    heardblow(game, mob, damage);
    if (!conscious(mob)) shots.dead.push_back(mob.mobname);
  }
  if (shots.hit.empty() && shots.safe.empty()) heard(game, cue::gunmissed, x, y);
  return shots;
}

std::string report(const Mob& gunman, std::string_view where, const Shots& shots) {
  const std::string fired =
      sentence({gunman.mobname, " fires ", hisorher(gunman.gender), " gun at location ", where});
  if (shots.hit.empty()) return fired + ", but hits nothing.  ";
  const std::string shot = sentence(
      {" shot by ", gunman.mobname, ", suffering ", std::to_string(gunman.gun), " damage.  "});
  return sentence(
      {fired, ".  ", joinnames(shots.hit, " was" + shot, " were" + shot),
       joinnames(shots.dead, " dropped dead from the injuries.  "),
       joinnames(shots.safe, " was safe behind a shield.  ", " were safe behind a shield.  ")});
}

bool isahero(const Mob& mob) {
  return mob.aliance == aliance::heroes;
}

// Everyone who dies in gunfire earns some hero a point, whoever fired. Without heroes, as after
// loading a strange file, nobody can be drawn.
void creditkills(Game& game, std::size_t kills) {
  bool anyhero = false;
  for (int slot = 1; slot <= heroslots; ++slot) anyhero = anyhero || isahero(game.mob(slot));
  if (!anyhero) return;
  for (; kills > 0; --kills) {
    int slot = draw(game, heroslots) + 1;
    while (!isahero(game.mob(slot))) slot = draw(game, heroslots) + 1;
    game.mob(slot).earnedpoints += 1;
  }
}

}  // namespace

std::pair<int, int> shootingtarget(const std::string& action) {
  const auto found = action.find(tag::shootopening);
  if (found == std::string::npos) return {0, 0};
  std::string_view aimed = std::string_view(action).substr(found + tag::shootopening.size());
  if (!aimed.empty()) aimed.remove_suffix(1);
  const auto comma = std::min(aimed.find(','), aimed.size());
  const auto row = std::min(comma + 1, aimed.size());
  return {leadingnumber(aimed.substr(0, comma)), leadingnumber(aimed.substr(row))};
}

std::string load(Game& game, Mob& gunman) {
  replaceeverytag(gunman.action, tag::reload, tag::loaded);
  const std::string_view his = hisorher(gunman.gender);
  // Four draws of seven are steps.
  const auto drawn = static_cast<std::size_t>(draw(game, 7));
  if (drawn < directions.size() && !insmoke(game, gunman)) {
    const Tile tile = step(tileof(gunman), directions[drawn]);
    if (onthemap(game, tile)) {
      gunman.startx = gunman.mobx;
      gunman.starty = gunman.moby;
      place(gunman, tile);
      heard(game, cue::step, gunman);
      heard(game, cue::gunloaded, gunman);
      return sentence(
          {gunman.mobname, " moves to ", location(tile.x, tile.y), " and loaded ", his, " gun.  "});
    }
  }
  heard(game, cue::gunloaded, gunman);
  return sentence({gunman.mobname, " loads ", his, " gun.  "});
}

std::string aim(Game& game, Mob& gunman) {
  heard(game, cue::gunaimed, gunman);
  const Mob& target = game.mob(gunman.target);
  replaceeverytag(gunman.action, tag::loaded, shootingtag(target.mobx, target.moby));
  return sentence({gunman.mobname, " aims ", hisorher(gunman.gender), " gun at ", target.mobname,
                   ", at ", location(target.mobx, target.moby), ".  "});
}

std::string volley(Game& game, Mob& gunman) {
  const auto [x, y] = shootingtarget(gunman.action);
  replaceeverytag(gunman.action, shootingtag(x, y), tag::reload);
  heard(game, cue::gunfired, gunman);
  const std::string where = location(x, y);
  if (hastag(tiletags(game, x, y), tag::smoke)) {
    heard(game, cue::gunmissed, x, y);
    return sentence({gunman.mobname,
                     " unleashes a hail of bullets into the thick smoke at location ", where,
                     ", but hits nothing.  "});
  }
  if (hastag(tiletags(game, x, y), tag::table)) {
    heard(game, cue::gunhitcover, x, y);
    return sentence({gunman.mobname, " unleashes a hail of bullets at location ", where,
                     ", but the overturned table absorbs the shots.  "});
  }
  const Shots shots = shoot(game, gunman.gun, x, y);
  creditkills(game, shots.dead.size());
  return report(gunman, where, shots);
}

}  // namespace duskmarch
