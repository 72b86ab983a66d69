// The game in its window.
#include <QApplication>
#include <csignal>

#include "game.h"
#include "platform/qt/crashhandler.h"
#include "platform/qt/frontend.h"
#include "platform/qt/screenreader.h"

int main(int argc, char** argv) {
  std::signal(SIGPIPE, SIG_IGN);  // a speech service that dies must not take the game with it
  duskmarch::servescreenreaders();
  const QApplication application(argc, argv);
  duskmarch::FrontEnd frontend;
  duskmarch::Game game(frontend.desktop());
  const duskmarch::CrashHandler crashhandler(game.trace, frontend.desktop().system.programfolder());
  frontend.run(game);
}
