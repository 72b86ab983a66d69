#include "platform/qt/screenreader.h"

#include <QAccessible>
#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>
#include <QVariantMap>
#include <QWidget>
#include <utility>

namespace duskmarch {

namespace {

using namespace std::chrono_literals;

// The connection that Qt's own accessibility bridge has opened, if it has.
QDBusConnection accessibilitybus() {
  return QDBusConnection(QStringLiteral("a11y"));
}

QString pathof(QWidget& window) {
  const auto id = QAccessible::uniqueId(QAccessible::queryAccessibleInterface(&window));
  return QStringLiteral("/org/a11y/atspi/accessible/%1").arg(id);
}

// The registry lists, as an array, what each reader wants to be told.
bool anylistener(const QDBusMessage& reply) {
  if (reply.type() != QDBusMessage::ReplyMessage) return false;
  const auto listeners = reply.arguments().value(0).value<QDBusArgument>();
  if (listeners.currentType() != QDBusArgument::ArrayType) return false;
  listeners.beginArray();
  return !listeners.atEnd();
}

}  // namespace

void servescreenreaders() {
  qputenv("QT_LINUX_ACCESSIBILITY_ALWAYS_ON", "1");
}

ScreenReader::ScreenReader(QWidget& window, std::function<void()> found)
    : window_(window), found_(std::move(found)) {
  QObject::connect(&timer_, &QTimer::timeout, [this] { ask(); });
  timer_.start(1s);
}

// The event that comes with it holds no name. A reader says nothing to it, and forgets the name
// that it knew: it asks for the new one when it needs it. An empty title is shown as the program's
// name.
void ScreenReader::retitled(const QString& title) {
  window_.setAccessibleName(title.trimmed().isEmpty() ? QStringLiteral("Duskmarch") : title);
}

// Neither setWindowTitle() nor setAccessibleName() sends an event that a reader understands, so
// this one is made by hand. A reader keeps silent about a name that it knows already: the number
// of spaces at the end makes each one new.
void ScreenReader::announce(const QString& title) {
  if (title.trimmed().isEmpty() || !window_.isActiveWindow()) return;
  longer_ = !longer_;
  const QString name = title + QString(longer_ ? 2 : 1, u' ');
  auto event =
      QDBusMessage::createSignal(pathof(window_), "org.a11y.atspi.Event.Object", "PropertyChange");
  event << QStringLiteral("accessible-name") << 0 << 0 << QVariant::fromValue(QDBusVariant(name))
        << QVariantMap();
  accessibilitybus().send(event);
}

void ScreenReader::ask() {
  const auto question =
      QDBusMessage::createMethodCall("org.a11y.atspi.Registry", "/org/a11y/atspi/registry",
                                     "org.a11y.atspi.Registry", "GetRegisteredEvents");
  auto* watcher = new QDBusPendingCallWatcher(accessibilitybus().asyncCall(question), &timer_);
  QObject::connect(watcher, &QDBusPendingCallWatcher::finished, &timer_,
                   [this](QDBusPendingCallWatcher* answered) {
                     const bool before = std::exchange(attached_, anylistener(answered->reply()));
                     answered->deleteLater();
                     if (attached_ && !before) found_();
                   });
}

}  // namespace duskmarch
