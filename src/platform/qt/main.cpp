// The game in its window.
#include <algorithm>
#include <array>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <optional>
#include <string_view>
#include <system_error>

#include "game.h"
#include "platform/commandline.h"
#include "platform/console.h"
#include "platform/gamefolders.h"
#include "platform/qt/application.h"
#include "platform/qt/crashhandler.h"
#include "platform/qt/fonts.h"
#include "platform/qt/frontend.h"
#include "platform/qt/screenreader.h"

namespace {

// A bundle has its programs in a folder of their own, one below their files.
std::filesystem::path filesabove(std::filesystem::path folder) {
  std::error_code ignored;
  if (folder.filename() != "bin" || std::filesystem::exists(folder / "sounds", ignored))
    return folder;
  return folder.parent_path();
}

// From the system itself: Qt's strings hold no names that are not UTF-8.
std::filesystem::path programfolder() {
  std::error_code error;
  const auto program = std::filesystem::read_symlink("/proc/self/exe", error);
  if (!error) return filesabove(program.parent_path());
  return QCoreApplication::applicationDirPath().toStdString();
}

// The toolkit's arguments. It takes them off once there is a display, which nobody needs who asks
// for the version or errs.
constexpr std::array<std::string_view, 14> toolkitarguments = {
    "-display", "-geometry",        "-platform",    "-platformpluginpath", "-platformtheme",
    "-plugin",  "-qwindowgeometry", "-qwindowicon", "-qwindowtitle",       "-reverse",
    "-session", "-style",           "-stylesheet",  "-widgetcount"};

bool startsfortoolkit(int count, char** words) {
  if (count < 2) return false;
  const std::string_view word = words[1];
  return std::ranges::find(toolkitarguments, word.substr(0, word.find('='))) !=
         toolkitarguments.end();
}

// The toolkit gives up only where it finds no display; it would end the program by a crash.
void tellofstart(QtMsgType type, const QMessageLogContext& /*context*/, const QString& text) {
  using duskmarch::tellcaller, duskmarch::Stream;
  if (type != QtFatalMsg) return tellcaller(text.toStdString(), Stream::errors);
  tellcaller("Duskmarch needs a graphical desktop to open its window on.", Stream::errors);
  std::_Exit(1);
}

std::optional<int> answerarguments(int count, char** words) {
  return duskmarch::answerarguments(duskmarch::commandline(count, words));
}

// The program from its start with a display to its end.
int play(int argc, char** argv) {
  std::signal(SIGPIPE, SIG_IGN);  // a speech service that dies must not take the game with it
  duskmarch::servescreenreaders();
  qInstallMessageHandler(tellofstart);
  duskmarch::Application application(argc, argv);
  qInstallMessageHandler(nullptr);
  if (const auto status = answerarguments(argc, argv)) return *status;
  QApplication::setApplicationName(QStringLiteral("Duskmarch"));  // shown for an empty title
  application.awaitaccessibility();
  const duskmarch::GameFolders folders(programfolder());
  duskmarch::addfonts(folders.program() / "fonts");
  duskmarch::FrontEnd frontend(folders);
  duskmarch::Game game(frontend.desktop());
  const duskmarch::CrashHandler crashhandler(game.trace, folders.files());
  return frontend.run(game) ? 0 : 1;
}

}  // namespace

int main(int argc, char** argv) {
  if (!startsfortoolkit(argc, argv)) {
    if (const auto status = answerarguments(argc, argv)) return *status;
  }
  // A thread may still ask for a screen reader's registry, or wait for a frozen sound server: it
  // must not see the libraries' objects taken down.
  std::_Exit(play(argc, argv));
}
