#include "platform/qt/frontend.h"

#include <QCoreApplication>
#include <utility>

#include "platform/qt/terminationsignals.h"
#include "shell/startup.h"

namespace duskmarch {

FrontEnd::FrontEnd(std::filesystem::path folder)
    : summarylabel_(window_, QStringLiteral("Turn summary")),
      storylabel_(window_, QStringLiteral("Story")),
      helplabel_(window_, QStringLiteral("Help")),
      dialogs_(window_),
      system_(window_, std::move(folder)),
      desktop_{system_, window_, summarylabel_, storylabel_, helplabel_, dialogs_} {}

bool FrontEnd::run(Game& game) {
  const TerminationSignals termination([this] { window_.end(); });
  window_.attach(game);
  startup(game);
  if (game.ended) return game.dsound != nullptr;
  window_.show();
  QCoreApplication::exec();
  return true;
}

}  // namespace duskmarch
