#include "heroturn/dooption.h"

#include <cctype>
#include <optional>
#include <string_view>

#include "audio/cues.h"
#include "heroturn/offers.h"
#include "heroturn/optionlist.h"
#include "resolution/melee.h"
#include "shell/speech/pages.h"
#include "shell/speech/speech.h"
#include "world/drawnmap.h"
#include "world/whostands.h"

namespace duskmarch {

namespace {

void refuse(Game& game) {
  messagebox(game, "", "Canceled");
}

std::optional<Direction> directionanswered(std::string_view answer) {
  if (answer.size() != 1) return std::nullopt;
  const int letter = std::toupper(static_cast<unsigned char>(answer.front()));
  for (const Direction& direction : directions) {
    if (direction.word.front() == letter) return direction;
  }
  return std::nullopt;
}

// As a map is held: up is north.
constexpr ArrowAnswers arrowanswers = {.left = "W", .up = "N", .right = "E", .down = "S"};

// Nothing when the player called it off.
std::optional<Direction> askdirection(Game& game) {
  static constexpr std::string_view prompt =
      "Enter N S E W to choose your direction, or leave blank to cancel.";
  const std::string answer = directionbox(game, "Choose direction", prompt, arrowanswers);
  if (answer.empty()) {
    sayit(game, "Canceled.");
    return std::nullopt;
  }
  const std::optional<Direction> direction = directionanswered(answer);
  if (!direction) refuse(game);
  return direction;
}

void pay(Game& game, Mob& hero, const Order& order) {
  if (order.spends == Spends::themove) hero.hasmoved = 1;
  if (order.spends == Spends::theaction) hero.hasacted = 1;
  if (!order.ability.empty()) useup(game, game.selected, order.ability, 1);
}

// Carries out an order upon everyone of a name, or upon the last of them. False when that would do
// nothing.
bool performupon(const Deed& deed, const Order& order, std::string_view name) {
  Game& game = deed.game;
  int last = 0;
  for (const Mob& mob : namesakes(game, name)) last = slotof(game, mob);
  if (last == 0) return true;
  if (order.meaning == Meaning::thelastofthatname) {
    deed.hero.target = last;
    if (order.worthwhile != nullptr && !order.worthwhile(game.mob(last))) return false;
    pay(game, deed.hero, order);
    order.perform({game, deed.hero, game.mob(last), deed.item, deed.direction});
    return true;
  }
  pay(game, deed.hero, order);
  for (Mob& mob : namesakes(game, name)) {
    deed.hero.target = slotof(game, mob);
    order.perform({game, deed.hero, mob, deed.item, deed.direction});
  }
  return true;
}

// False when the order was called off: then nothing follows it.
bool perform(Game& game, const OptionLine& line, Direction direction) {
  const Order& order = *line.order;
  Mob& hero = game.mob(game.selected);
  if (order.travels && !onthemap(game, step(tileof(hero), direction))) {
    refuse(game);
    return false;
  }
  const int piece =
      order.furniture.empty() ? 0 : finditem(game, hero.mobx, hero.moby, order.furniture);
  if (!order.furniture.empty() && piece == 0) return true;
  const Deed deed{game, hero, game.mob(0), game.item(piece), direction};
  if (order.upon != nullptr) return performupon(deed, order, line.name);
  pay(game, hero, order);
  order.perform(deed);
  return true;
}

void commonending(Game& game) {
  for (const Mob& mob : standing(game)) engagedcheck(game, slotof(game, mob));
  playorder(game);
  sayit(game, game.list1.empty() ? std::string_view{} : game.list1.front());
  drawscreen(game);
  listoptions(game, 0);
}

}  // namespace

void dooption(Game& game, std::string_view option, const Direction& direction) {
  const OptionLine line = readoption(option);
  if (line.order == nullptr || perform(game, line, direction)) commonending(game);
}

void dooption(Game& game, std::string_view option) {
  const OptionLine line = readoption(option);
  if (line.order == nullptr) return commonending(game);
  Direction direction;
  if (line.order->asks == Asks::direction) {
    const std::optional<Direction> answered = askdirection(game);
    if (!answered) return;
    direction = *answered;
  }
  if (perform(game, line, direction)) commonending(game);
}

}  // namespace duskmarch
