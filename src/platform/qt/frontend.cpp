#include "platform/qt/frontend.h"

#include <QCoreApplication>

#include "platform/qt/terminationsignals.h"
#include "shell/window.h"

namespace duskmarch {

FrontEnd::FrontEnd()
    : summarylabel_(window_, QStringLiteral("Turn summary")),
      storylabel_(window_, QStringLiteral("Story")),
      dialogs_(window_),
      system_(window_),
      desktop_{system_, window_, summarylabel_, storylabel_, dialogs_} {}

void FrontEnd::run(Game& game) {
  const TerminationSignals termination([this] { window_.end(); });
  window_.attach(game);
  startup(game);
  if (game.ended) return;
  window_.show();
  QCoreApplication::exec();
}

}  // namespace duskmarch
