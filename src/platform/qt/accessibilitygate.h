// The start of the toolkit's accessibility bridge, put off until the screen readers' registry
// answers: the bridge waits for it without handling events, for most of a minute where it hangs.
#pragma once

#include <QEvent>
#include <QPointer>
#include <QTimer>
#include <chrono>
#include <future>

namespace duskmarch {

class AccessibilityGate {
 public:
  AccessibilityGate();
  // Whether this event, the one that would start the bridge, must not reach its receiver. The
  // bridge is started when the registry answers, whenever that is.
  bool holdsback(QObject& receiver, const QEvent& event);
  // Returns when the bridge has been started, but not later than after `limit`: a window that is
  // shown sooner would not be announced.
  void wait(std::chrono::milliseconds limit);

 private:
  void ask();
  void startwhenanswered();

  QPointer<QObject> bridge_;
  std::future<QString> answer_;  // the address of the accessibility bus
  QTimer timer_;
  bool asking_ = false;
  bool open_ = false;
};

}  // namespace duskmarch
