// What an end of turn costs as the number of mobs grows. Run it with a program folder that holds
// the sounds as the working directory.
#include <array>

#include <benchmark/benchmark.h>

#include "platform/replay/replaysession.h"
#include "resolution/endturn.h"
#include "shell/keycodes.h"
#include "world/tables.h"

namespace duskmarch {
namespace {

// Two heroes who outlive any run, and enemies of all kinds from the corners.
void crowd(Game& game, int enemies) {
  constexpr std::array types = {mobtype::ordinary, mobtype::gunman, mobtype::gifted};
  for (int slot = 1; slot <= game.mobcount; ++slot) game.mob(slot).health = 0;
  game.mobcount = 2;
  for (int hero = 1; hero <= 2; ++hero) game.mob(hero).health = Number::limit;
  for (int n = 0; n < enemies; ++n) {
    const int type = types[static_cast<std::size_t>(n) % types.size()];
    const std::string name = "Mob " + std::to_string(n);
    const int slot = newmob(game, {.name = name,
                                   .gender = "M",
                                   .type = type,
                                   .health = static_cast<int>(Number::limit),
                                   .x = 1 + n % 5,
                                   .y = 1 + n / 5 % 5,
                                   .fight = 4,
                                   .gun = type == mobtype::gunman ? 6 : 0});
    if (type == mobtype::gifted) give(game, slot, "Kick", 1000);
  }
}

void endofturn(benchmark::State& state) {
  ReplaySession session({.folder = "."});
  for (const int code : {key::down, key::down, key::enter, key::escape}) {
    session.presskey({.keycode = code});
  }
  crowd(session.game, static_cast<int>(state.range(0)));
  for (auto _ : state) {
    endturn(session.game);
    session.game.summarylabel.lines.resize(1);  // measured by the size of the crowd alone
    session.replay.transcript.clear();
  }
  state.SetItemsProcessed(state.iterations());
}
BENCHMARK(endofturn)->Arg(12)->Arg(24)->Arg(48)->Arg(96)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace duskmarch
