#include "platform/qt/accessibilitygate.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusReply>
#include <QEventLoop>
#include <memory>
#include <thread>

namespace duskmarch {

namespace {

using namespace std::chrono_literals;

// The bridge's slot for the address of the accessibility bus, which it asks for at its start.
constexpr auto startslot = "connectA11yBus";

bool isbridge(const QObject& object) {
  return object.metaObject()->indexOfSlot("connectA11yBus(QString)") != -1;
}

bool registryanswers(const QString& address) {
  const QString name = QStringLiteral("duskmarch-asking");
  const auto question =
      QDBusMessage::createMethodCall("org.a11y.atspi.Registry", "/org/a11y/atspi/registry",
                                     "org.a11y.atspi.Registry", "GetRegisteredEvents");
  const auto reply = QDBusConnection::connectToBus(address, name).call(question);
  QDBusConnection::disconnectFromBus(name);
  return reply.type() == QDBusMessage::ReplyMessage;
}

// May take as long as it likes; each question gives up by itself.
QString addresswithregistry() {
  const auto question =
      QDBusMessage::createMethodCall("org.a11y.Bus", "/org/a11y/bus", "org.a11y.Bus", "GetAddress");
  while (true) {
    const QDBusReply<QString> address = QDBusConnection::sessionBus().call(question);
    if (address.isValid() && registryanswers(address.value())) return address.value();
    std::this_thread::sleep_for(1s);
  }
}

}  // namespace

AccessibilityGate::AccessibilityGate() {
  QObject::connect(&timer_, &QTimer::timeout, [this] { startwhenanswered(); });
}

bool AccessibilityGate::holdsback(QObject& receiver, const QEvent& event) {
  if (open_ || event.type() != QEvent::MetaCall || !isbridge(receiver)) return false;
  bridge_ = &receiver;
  if (!asking_) ask();
  return true;
}

void AccessibilityGate::ask() {
  asking_ = true;
  // Not std::async, which would wait for the answer when the program ends.
  std::packaged_task<QString()> task(addresswithregistry);
  answer_ = task.get_future();
  std::thread(std::move(task)).detach();
  timer_.start(10ms);
}

void AccessibilityGate::startwhenanswered() {
  if (answer_.wait_for(0s) != std::future_status::ready) return;
  timer_.stop();
  open_ = true;
  if (bridge_.isNull()) return;
  QMetaObject::invokeMethod(bridge_, startslot, Q_ARG(QString, answer_.get()));
}

void AccessibilityGate::wait(std::chrono::milliseconds limit) {
  QEventLoop loop;
  QTimer watch;
  QObject::connect(&watch, &QTimer::timeout, &loop, [&] {
    if (!asking_ || open_) loop.quit();
  });
  watch.start(5ms);
  QTimer end;
  QObject::connect(&end, &QTimer::timeout, &loop, &QEventLoop::quit);
  end.start(limit);
  loop.exec();
}

}  // namespace duskmarch
