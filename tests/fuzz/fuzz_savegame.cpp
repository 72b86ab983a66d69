// Any saved game: loaded, looked at, played on and saved again.
#include "fuzzfolder.h"
#include "invariants.h"
#include "platform/replay/replaysession.h"
#include "shell/speech/keycodes.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace duskmarch;
  ReplaySession session({.folder = fuzzfolder("game.sav", data, size)});
  session.presskey({.keycode = key::f9});
  session.game.menuname = screen::hideout;  // also after a load that failed half way
  for (const int code : {key::down, key::enter, key::down, key::down, key::down}) {
    session.presskey({.keycode = code});
  }
  session.game.menuname = screen::hideout;
  session.game.menupos = 4;
  session.presskey({.keycode = key::enter, .shift = 1});
  session.presskey({.keycode = key::escape});
  for (int turn = 0; turn < 3; ++turn) {
    for (const int code : {key::space, key::down, key::enter, key::v, key::m, key::x}) {
      session.presskey({.keycode = code});
    }
    session.perform("draw");
    session.presskey({.keycode = key::e, .shift = 1});
    session.presskey({.keycode = key::enter});
  }
  session.perform("save");
  if (!brokeninvariant(session.game).empty()) std::abort();
  return 0;
}
