#include "shell/speech/selfreading.h"

#include "audio/cues.h"
#include "audio/soundlist.h"
#include "shell/speech/keycodes.h"
#include "shell/speech/speechengines.h"

namespace duskmarch {

namespace {

bool readsitself(const Game& game) {
  return speechengine(game).read != nullptr && !game.desktop.system.readerattached();
}

void read(Game& game, std::string_view text, Saying saying) {
  if (readsitself(game)) speechengine(game).read(game, text, saying);
}

std::string_view orblank(std::string_view text) {
  return text.empty() ? "Blank." : text;
}

}  // namespace

void readaloud(Game& game, std::string_view text) {
  if (!text.empty()) read(game, text, Saying::afterwards);
}

void readpage(Game& game, std::string_view text) {
  game.pageread = orblank(text);
  read(game, game.pageread, Saying::afterwards);
}

void readpageagain(Game& game) {
  read(game, orblank(game.pageread), Saying::atonce);
}

void stopreading(Game& game) {
  if (readsitself(game)) speechengine(game).silence(game);
}

void caretmoved(Game& game, std::string_view text) {
  tosoundline(game, text);
  game.pageread = orblank(text);
  read(game, game.pageread, Saying::atonce);
}

void echotyped(Game& game, std::string_view text) {
  read(game, orblank(text), Saying::atonce);
}

void boxkey(Game& game, int keycode) {
  stopcues(game);
  speechengine(game).keypressed(game);
  if (keycode == key::ctrl) speechengine(game).silence(game);
}

}  // namespace duskmarch
