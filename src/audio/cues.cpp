#include "audio/cues.h"

#include <algorithm>
#include <array>
#include <exception>

#include "debuglog.h"

namespace duskmarch {
namespace {

constexpr int furthestpan = 80;     // never quite to one side
constexpr int rowpitch = 100;       // hundredths of a semitone from one row to the next,
constexpr int furthestpitch = 300;  // but not beyond this
constexpr int ordergap = 120;       // milliseconds
constexpr int turngap = 150;
constexpr int closestgap = 45;
// When the last cue of an end of turn begins. It may last a second, and longer at a low pitch.
constexpr int lateststart = 1800;
constexpr std::size_t most = 1 + lateststart / closestgap;

// From -`furthest` to `furthest` as `at` goes from 1 to `size`; 0 in the middle.
int spread(int at, int size, int furthest) {
  if (size < 2) return 0;
  return (2 * std::clamp(at, 1, size) - size - 1) * furthest / (size - 1);
}

int panof(const Game& game, const Sounding& what) {
  return what.placed ? spread(what.x, game.mapwidth, furthestpan) : 0;
}

int pitchof(const Game& game, const Sounding& what) {
  const int outermost = std::min(furthestpitch, rowpitch * (game.mapheight - 1) / 2);
  return what.placed ? -spread(what.y, game.mapheight, outermost) : 0;
}

Cue cueof(const Game& game, const Sounding& what, int delay) {
  const CueRow& row = cuerow(what.cue);
  return {.name = row.name,
          .pan = panof(game, what),
          .pitch = pitchof(game, what),
          .delay = delay,
          .loudness = row.loudness,
          .weight = static_cast<int>(row.weight)};
}

// Where the file of a cue or of a loop is, or where it should be.
std::filesystem::path found(Game& game, std::string_view name) {
  const CueRow* const cue = findcue(name);
  const std::string wanted = cue != nullptr ? fileof(*cue) : fileof(*findambience(name));
  const std::filesystem::path* const file = game.soundfinder.find(game.programfolder, wanted);
  return file == nullptr ? game.programfolder / std::string_view(wanted).substr(1) : *file;
}

// What goes wrong with a sound is a line in the log and silence.
template <class Work>
void withdevice(Game& game, Work work) {
  if (!game.dsound) return;
  try {
    work(game.dsound->cues());
  } catch (const std::exception& error) {
    logerror(game, "cues", error.what());
  }
}

void play(Game& game, int gap) {
  if (game.soundings.empty()) return;
  game.cues.clear();
  int delay = 0;
  for (const Sounding& what : game.soundings) {
    game.cues.push_back(cueof(game, what, delay));
    delay += gap;
  }
  game.soundings.clear();
  withdevice(game, [&](CueDevice& device) {
    device.playcues(game.cues, [&](std::string_view name) { return found(game, name); });
  });
}

CueWeight weightof(const Sounding& what) {
  return cuerow(what.cue).weight;
}

// Drops as many as are too many of one weight, the latest ones.
void thinout(std::vector<Sounding>& soundings, CueWeight weight) {
  if (soundings.size() <= most) return;
  const auto these = std::ranges::count(soundings, weight, weightof);
  auto left = std::max<std::ptrdiff_t>(0, these - std::ssize(soundings) + std::ptrdiff_t{most});
  std::erase_if(soundings,
                [&](const Sounding& what) { return weightof(what) == weight && left-- <= 0; });
}

}  // namespace

void heard(Game& game, cue::Id cue, int x, int y) {
  game.soundings.push_back({.cue = cue, .placed = true, .x = x, .y = y});
}

void heard(Game& game, cue::Id cue, const Mob& where) {
  heard(game, cue, where.mobx, where.moby);
}

void heard(Game& game, cue::Id cue) {
  game.soundings.push_back({.cue = cue});
}

void heardblow(Game& game, const Mob& victim, std::int64_t damage) {
  const bool hero = victim.aliance == aliance::heroes;
  if (damage <= 0) return heard(game, cue::blowblocked, victim);
  heard(game, hero ? cue::hithero : cue::hitenemy, victim);
  if (victim.health <= 0) heard(game, hero ? cue::herodown : cue::enemydown, victim);
}

void hearddazingblow(Game& game, const Mob& victim, std::int64_t damage) {
  heardblow(game, victim, damage);
  if (victim.health > 0) heard(game, cue::dazed, victim);
}

void playorder(Game& game) {
  play(game, ordergap);
}

void playendofturn(Game& game) {
  for (const CueWeight weight : {CueWeight::footstep, CueWeight::event, CueWeight::outcome}) {
    thinout(game.soundings, weight);
  }
  const int gaps = std::max(1, static_cast<int>(game.soundings.size()) - 1);
  play(game, std::min(turngap, lateststart / gaps));
}

void playcue(Game& game, cue::Id cue, int x, int y) {
  heard(game, cue, x, y);
  playorder(game);
}

void playcue(Game& game, cue::Id cue) {
  heard(game, cue);
  playorder(game);
}

void stopcues(Game& game) {
  game.soundings.clear();
  withdevice(game, [](CueDevice& device) { device.stopcues(); });
}

void setambience(Game& game, std::string_view name) {
  if (name == game.ambience) return;
  game.ambience = name;
  const AmbienceRow* const row = findambience(name);
  withdevice(game, [&](CueDevice& device) {
    device.setambience(name, row == nullptr ? 0 : row->loudness,
                       [&](std::string_view file) { return found(game, file); });
  });
}

void setcuevolumes(Game& game) {
  withdevice(game, [&](CueDevice& device) {
    device.setcuevolume(game.cuevolume);
    device.setambiencevolume(game.ambiencevolume);
  });
}

}  // namespace duskmarch
