#include "platform/qt/application.h"

#include "platform/qt/keymap.h"

namespace duskmarch {

Application::Application(int& argc, char** argv)
    : QApplication(argc, argv), gate_(std::make_unique<AccessibilityGate>()) {}

void Application::awaitaccessibility() {
  gate_->wait(std::chrono::milliseconds(500));
}

bool Application::isheld(const QKeyEvent& key) const {
  const auto press = virtualkey(key);
  return press && actsonce(press->keycode) &&
         heldkeys_.repeats(key.nativeScanCode(), key.timestamp(), key.isAutoRepeat());
}

bool Application::notify(QObject* receiver, QEvent* event) {
  if (gate_ && gate_->holdsback(*receiver, *event)) return true;
  // As they come from the system: each once, for one of its windows.
  if (event->spontaneous() && receiver->isWindowType()) {
    if (event->type() == QEvent::KeyPress && isheld(static_cast<const QKeyEvent&>(*event))) {
      return true;
    }
    if (event->type() == QEvent::KeyRelease) {
      const auto& key = static_cast<const QKeyEvent&>(*event);
      heldkeys_.released(key.nativeScanCode(), key.timestamp());
    }
  }
  return QApplication::notify(receiver, event);
}

}  // namespace duskmarch
