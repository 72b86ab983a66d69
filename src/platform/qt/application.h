// The toolkit's application object, which sees every key before anything else does.
#pragma once

#include <QApplication>
#include <QKeyEvent>
#include <memory>

#include "platform/frontend/heldkeys.h"
#include "platform/qt/accessibilitygate.h"

namespace duskmarch {

class Application : public QApplication {
 public:
  Application(int& argc, char** argv);

  // Passes over the keys that act once and come again because they are held. Not an event filter:
  // the accessibility bridge puts its own before all others, and what comes through it has lost its
  // time.
  bool notify(QObject* receiver, QEvent* event) override;
  // Gives the accessibility bridge the time that it takes to start, on a machine where nothing
  // hangs.
  void awaitaccessibility();

 private:
  bool isheld(const QKeyEvent& key) const;

  HeldKeys heldkeys_;
  std::unique_ptr<AccessibilityGate> gate_;
};

}  // namespace duskmarch
