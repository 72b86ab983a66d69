#include "shell/speech/pages.h"

#include "shell/speech/selfreading.h"

namespace duskmarch {

namespace {

void givefocus(Game& game, Page& page, Focus focus) {
  game.focus = focus;
  page.focus();
}

void hide(Game& game, Page& page, Focus focus) {
  page.hide();
  if (game.focus == focus) game.focus = Focus::window;
}

}  // namespace

void showsummary(Game& game) {
  game.desktop.summarylabel.show(game.summarylabel.text());
}

void focussummary(Game& game) {
  givefocus(game, game.desktop.summarylabel, Focus::summarylabel);
}

void hidesummary(Game& game) {
  hide(game, game.desktop.summarylabel, Focus::summarylabel);
}

void showstory(Game& game) {
  game.desktop.storylabel.show(game.storylabel);
}

void focusstory(Game& game) {
  givefocus(game, game.desktop.storylabel, Focus::storylabel);
  readaloud(game, game.storylabel);
}

void hidestory(Game& game) {
  hide(game, game.desktop.storylabel, Focus::storylabel);
}

std::string inputbox(Game& game, std::string_view title, std::string_view prompt, bool spoken) {
  readaloud(game, spoken ? std::string(title) : std::string(title) + ".  " + std::string(prompt));
  std::string typed = game.desktop.dialogs.input(title, prompt);
  game.trace.answer(typed);
  return typed;
}

void messagebox(Game& game, std::string_view title, std::string_view text) {
  readaloud(game,
            title.empty() ? std::string(text) : std::string(title) + ".  " + std::string(text));
  game.desktop.dialogs.message(title, text);
}

}  // namespace duskmarch
