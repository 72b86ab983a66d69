// The game in its window.
#include <csignal>
#include <filesystem>
#include <system_error>

#include "game.h"
#include "platform/qt/application.h"
#include "platform/qt/crashhandler.h"
#include "platform/qt/frontend.h"
#include "platform/qt/screenreader.h"

namespace {

// From the system itself: Qt's strings hold no names that are not UTF-8.
std::filesystem::path programfolder() {
  std::error_code error;
  const auto program = std::filesystem::read_symlink("/proc/self/exe", error);
  if (!error) return program.parent_path();
  return QCoreApplication::applicationDirPath().toStdString();
}

}  // namespace

int main(int argc, char** argv) {
  std::signal(SIGPIPE, SIG_IGN);  // a speech service that dies must not take the game with it
  duskmarch::servescreenreaders();
  duskmarch::Application application(argc, argv);
  QApplication::setApplicationName(QStringLiteral("Duskmarch"));  // shown for an empty title
  application.awaitaccessibility();
  const std::filesystem::path folder = programfolder();
  duskmarch::FrontEnd frontend(folder);
  duskmarch::Game game(frontend.desktop());
  const duskmarch::CrashHandler crashhandler(game.trace, folder);
  return frontend.run(game) ? 0 : 1;
}
