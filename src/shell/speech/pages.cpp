#include "shell/speech/pages.h"

#include "shell/speech/selfreading.h"
#include "shell/speech/speech.h"
#include "shell/speech/speechengines.h"

namespace duskmarch {

namespace {

void givefocus(Game& game, Page& page, Focus focus) {
  game.focus = focus;
  page.focus();
}

void hide(Game& game, Page& page, Focus focus) {
  page.hide();
  stopreading(game);
  if (game.focus == focus) game.focus = Focus::window;
}

void announcebox(Game& game, std::string_view title, std::string_view prompt) {
  if (speechengine(game).speaksprompts) {
    sayit(game, prompt);
  } else {
    readaloud(game, prompt);
  }
  readaloud(game, title);
}

std::string noted(Game& game, std::string answer) {
  game.trace.answer(answer);
  return answer;
}

}  // namespace

void showsummary(Game& game) {
  game.desktop.summarylabel.show(game.summarylabel.text());
}

void focussummary(Game& game) {
  givefocus(game, game.desktop.summarylabel, Focus::summarylabel);
  game.pageread = game.turnsummary;  // which was spoken just now
}

void readsummary(Game& game) {
  focussummary(game);
  const std::vector<std::string>& oldestfirst = game.summarylabel.lines;
  readpage(game, oldestfirst.empty() ? std::string_view() : oldestfirst.back());
}

void hidesummary(Game& game) {
  hide(game, game.desktop.summarylabel, Focus::summarylabel);
}

void showstory(Game& game) {
  game.storyshown = true;
  game.desktop.storylabel.show(game.storylabel);
}

void focusstory(Game& game) {
  givefocus(game, game.desktop.storylabel, Focus::storylabel);
  readpage(game, game.storylabel);
}

void hidestory(Game& game) {
  game.storyshown = false;
  hide(game, game.desktop.storylabel, Focus::storylabel);
}

void showhelp(Game& game, std::string_view name) {
  game.desktop.helplabel.setname(name);
  game.desktop.helplabel.show(game.helplabel);
}

void focushelp(Game& game) {
  givefocus(game, game.desktop.helplabel, Focus::helplabel);
  readpage(game, game.helplabel);
}

void hidehelp(Game& game) {
  hide(game, game.desktop.helplabel, Focus::helplabel);
}

std::string inputbox(Game& game, std::string_view title, std::string_view prompt) {
  announcebox(game, title, prompt);
  return noted(game, game.desktop.dialogs.input(title, prompt));
}

std::string directionbox(Game& game, std::string_view title, std::string_view prompt,
                         const ArrowAnswers& arrows) {
  announcebox(game, title, prompt);
  return noted(game, game.desktop.dialogs.choosedirection(title, prompt, arrows));
}

void messagebox(Game& game, std::string_view title, std::string_view text) {
  readaloud(game,
            title.empty() ? std::string(text) : std::string(title) + ".  " + std::string(text));
  game.desktop.dialogs.message(title, text);
}

}  // namespace duskmarch
