// What an end of turn costs as the number of mobs grows, and how much is told of it: missions of
// ten ends, begun anew. Run it with a program folder that holds the sounds as the working
// directory.
#include <array>

#include <benchmark/benchmark.h>

#include "platform/replay/replaysession.h"
#include "resolution/endturn.h"
#include "shell/speech/keycodes.h"
#include "world/tables.h"

namespace duskmarch {
namespace {

constexpr int endsofmission = 10;

// Two heroes who outlive any mission, and enemies of all kinds all over the map.
void crowd(Game& game, int enemies) {
  constexpr std::array types = {mobtype::ordinary, mobtype::gunman, mobtype::gifted};
  game.mobcount = 2;
  game.turnnumber = 0;
  game.mapwidth = game.mapheight = gridsize - 1;
  for (int hero = 1; hero <= 2; ++hero) game.mob(hero).health = Number::limit;
  for (int n = 0; n < enemies; ++n) {
    const int type = types[static_cast<std::size_t>(n) % types.size()];
    const std::string name = "Mob " + std::to_string(n);
    const int slot = newmob(game, {.name = name,
                                   .gender = "M",
                                   .type = type,
                                   .health = static_cast<int>(Number::limit),
                                   .x = 1 + n * 7 % game.mapwidth,
                                   .y = 1 + n * 4 % game.mapheight,
                                   .fight = 4,
                                   .gun = type == mobtype::gunman ? 6 : 0});
    if (type == mobtype::gifted) give(game, slot, "Kick", 1000);
  }
}

void endsofturn(benchmark::State& state) {
  ReplaySession session({.folder = "."});
  for (const int code : {key::down, key::down, key::enter, key::escape}) {
    session.presskey({.keycode = code});
  }
  std::size_t bytes = 0;
  while (state.KeepRunning()) {
    state.PauseTiming();
    crowd(session.game, static_cast<int>(state.range(0)));
    state.ResumeTiming();
    for (int end = 0; end < endsofmission; ++end) {
      endturn(session.game);
      session.game.summarylabel.lines.resize(1);  // measured by the size of the crowd alone
    }
    bytes += session.replay.transcript.text().size();
    session.replay.transcript.clear();
  }
  const auto ends = static_cast<double>(state.iterations() * endsofmission);
  state.counters["end"] = {ends, benchmark::Counter::kIsRate | benchmark::Counter::kInvert};
  state.counters["bytes"] = static_cast<double>(bytes) / ends;
}
BENCHMARK(endsofturn)->Arg(12)->Arg(24)->Arg(48)->Arg(96)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace duskmarch
