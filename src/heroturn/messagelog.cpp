#include "heroturn/messagelog.h"

#include <string>

#include "shell/speech/speech.h"
#include "values/textfile.h"
#include "world/narration.h"

namespace duskmarch {

void list1additem(Game& game, std::string_view line) {
  const std::string translated = translate(game, line);
  const std::string_view shown = trim(translated);
  game.summarylabel.lines.emplace_back(shown);
  game.list1.emplace_front(shown);
  game.turnsummary.append("  ").append(shown);
  sayit(game, "");
  game.desktop.window.processevents();
}

}  // namespace duskmarch
