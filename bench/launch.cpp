// One launch, timed from the moment that the caller gives (CLOCK_MONOTONIC, nanoseconds):
//   launch empty START   an empty window of the toolkit, to its first paint
//   launch game START    the game, to the first text that it asks its voice to say
#include <QApplication>
#include <QWidget>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "game.h"
#include "platform/qt/frontend.h"
#include "platform/qt/screenreader.h"
#include "shell/startup.h"

namespace {

using namespace duskmarch;

std::chrono::nanoseconds launched;

[[noreturn]] void report() {
  const auto now = std::chrono::steady_clock::now().time_since_epoch();
  std::printf("%.2f\n", std::chrono::duration<double, std::milli>(now - launched).count());
  std::fflush(stdout);
  std::_Exit(0);
}

class EmptyWindow : public QWidget {
  void paintEvent(QPaintEvent*) override { report(); }
};

class TimedVoice : public Voice {
  void setrate(int) override {}
  void speak(std::string_view) override { report(); }
  void speakafter(std::string_view) override { report(); }
  void hush() override {}
};

// The real system, but its voice tells the time instead. The real one is made all the same.
class TimedSystem : public System {
 public:
  explicit TimedSystem(System& real) : real_(real) {}
  std::filesystem::path programfolder() const override { return real_.programfolder(); }
  std::uint32_t secondssincemidnight() const override { return real_.secondssincemidnight(); }
  std::unique_ptr<Voice> createvoice() override {
    voice_ = real_.createvoice();
    return std::make_unique<TimedVoice>();
  }
  std::unique_ptr<JawsApi> createjaws() override { return real_.createjaws(); }
  std::unique_ptr<SoundDevice> opensound() override { return real_.opensound(); }
  std::unique_ptr<MusicGraph> createmusic(const std::filesystem::path& file) override {
    return real_.createmusic(file);
  }
  bool readerattached() const override { return real_.readerattached(); }
  void end() override { real_.end(); }

 private:
  System& real_;
  std::unique_ptr<Voice> voice_;
};

int emptywindow(int argc, char** argv) {
  const QApplication application(argc, argv);
  EmptyWindow window;
  window.resize(1288, 660);
  window.show();
  return QApplication::exec();
}

int game(int argc, char** argv) {
  servescreenreaders();
  const QApplication application(argc, argv);
  const GameFolders folders(QCoreApplication::applicationDirPath().toStdString());
  FrontEnd frontend(folders);
  Desktop real = frontend.desktop();
  TimedSystem system(real.system);
  Desktop timed{system,          real.window,    real.summarylabel,
                real.storylabel, real.helplabel, real.dialogs};
  Game state(timed);
  startup(state);
  return 1;  // it said nothing
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 3) {
    std::fprintf(stderr, "usage: launch empty|game START\n");
    return 2;
  }
  launched = std::chrono::nanoseconds(std::stoll(argv[2]));
  return argv[1] == std::string_view("game") ? game(argc, argv) : emptywindow(argc, argv);
}
