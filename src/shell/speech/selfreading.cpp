#include "shell/speech/selfreading.h"

namespace duskmarch {

namespace {

bool readsitself(const Game& game) {
  return game.speechmode == 0 && game.sapiready == 1 && !game.desktop.system.readerattached();
}

}  // namespace

void readaloud(Game& game, std::string_view text) {
  if (readsitself(game) && !text.empty()) game.sapivoice->speakafter(text);
}

void caretmoved(Game& game, std::string_view text) {
  if (readsitself(game)) game.sapivoice->speak(text);
}

void echotyped(Game& game, std::string_view text) {
  if (readsitself(game)) game.sapivoice->speak(text);
}

}  // namespace duskmarch
