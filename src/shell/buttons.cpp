#include "shell/buttons.h"

#include "heroturn/dooption.h"
#include "heroturn/optionlist.h"
#include "resolution/endturn.h"
#include "world/drawnmap.h"
#include "world/nexthero.h"

namespace duskmarch {

void command1_click(Game& game) {
  endturn(game);
}

void command2_click(Game& game) {
  const auto line = static_cast<std::size_t>(game.menupos) - 1;
  if (line < game.list2.size()) dooption(game, game.list2[line]);
}

void command3_click(Game& game) {
  const int next = nexthero(game);
  if (next != 0) game.selected = next;
  game.command3 = game.mob(game.selected).mobname;
  listoptions(game, 0);
  drawscreen(game);
}

}  // namespace duskmarch
