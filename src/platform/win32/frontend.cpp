#include "platform/win32/frontend.h"

#include "shell/startup.h"

namespace duskmarch {

FrontEnd::FrontEnd(const GameFolders& folders)
    : summarylabel_(window_, L"Turn summary"),
      storylabel_(window_, L"Story"),
      helplabel_(window_, L"Help"),
      dialogs_(window_),
      system_(window_, folders),
      desktop_{system_, window_, summarylabel_, storylabel_, helplabel_, dialogs_} {}

int FrontEnd::run(Game& game, int how) {
  window_.attach(game);
  startup(game);
  if (game.ended) return game.dsound != nullptr && !system_.alreadyrunning() ? 0 : 1;
  window_.run(how);
  return 0;
}

}  // namespace duskmarch
