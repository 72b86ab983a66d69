#include "platform/qt/frontend.h"

#include <QCoreApplication>

#include "platform/qt/terminationsignals.h"
#include "shell/startup.h"

namespace duskmarch {

FrontEnd::FrontEnd(const GameFolders& folders)
    : summarylabel_(window_, QStringLiteral("Turn summary")),
      storylabel_(window_, QStringLiteral("Story")),
      helplabel_(window_, QStringLiteral("Help")),
      dialogs_(window_),
      system_(window_, folders),
      desktop_{system_, window_, summarylabel_, storylabel_, helplabel_, dialogs_} {}

bool FrontEnd::run(Game& game) {
  const TerminationSignals termination([this] { window_.end(); });
  window_.attach(game);
  startup(game);
  if (game.ended) return game.dsound != nullptr && !system_.alreadyrunning();
  window_.show();
  QCoreApplication::exec();
  return true;
}

}  // namespace duskmarch
