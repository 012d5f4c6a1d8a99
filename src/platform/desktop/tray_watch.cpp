#include "platform/desktop/tray_watch.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QFile>
#include <utility>

namespace klarvik {
namespace {

constexpr auto service = "org.kde.StatusNotifierWatcher";
constexpr auto path = "/StatusNotifierWatcher";

/// Connecting where no bus runs would make the bus library start one.
bool hasSessionBus() {
  return qEnvironmentVariableIsSet("DBUS_SESSION_BUS_ADDRESS") ||
         QFile::exists(qEnvironmentVariable("XDG_RUNTIME_DIR") + "/bus");
}

}  // namespace

TrayWatch::TrayWatch(std::function<void()> changed)
    : _changed(std::move(changed)), _x11Tray(X11TrayWatch::onThisDisplay([this] { update(); })) {
  _isPresent = _x11Tray && _x11Tray->hasTray();
  if (hasSessionBus()) followBus();
}

void TrayWatch::followBus() {
  QDBusConnection bus = QDBusConnection::sessionBus();
  if (!bus.isConnected()) return;
  _notifierWatcher.setConnection(bus);
  _notifierWatcher.addWatchedService(service);
  connect(&_notifierWatcher, &QDBusServiceWatcher::serviceOwnerChanged, this,
          &TrayWatch::askForHost);
  for (const char* signal : {"StatusNotifierHostRegistered", "StatusNotifierHostUnregistered"}) {
    bus.connect(service, path, service, signal, this, SLOT(askForHost()));
  }
  askForHost();
}

void TrayWatch::askForHost() {
  auto question =
      QDBusMessage::createMethodCall(service, path, "org.freedesktop.DBus.Properties", "Get");
  question << service << QStringLiteral("IsStatusNotifierHostRegistered");
  question.setAutoStartService(false);
  auto* answer =
      new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(question), this);
  connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer] {
    const QDBusPendingReply<QDBusVariant> reply = *answer;
    setHasHost(reply.isValid() && reply.value().variant().toBool());
    answer->deleteLater();
  });
}

void TrayWatch::setHasHost(bool hasHost) {
  _hasHost = hasHost;
  update();
}

void TrayWatch::update() {
  const bool isPresent = _hasHost || (_x11Tray && _x11Tray->hasTray());
  if (isPresent == _isPresent) return;
  _isPresent = isPresent;
  _changed();
}

}  // namespace klarvik
