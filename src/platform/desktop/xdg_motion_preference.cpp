#include "platform/desktop/xdg_motion_preference.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QFile>
#include <QSettings>
#include <QStandardPaths>

namespace klarvik {
namespace {

constexpr auto environmentName = "KLARVIK_REDUCE_MOTION";
constexpr auto portalService = "org.freedesktop.portal.Desktop";
constexpr auto portalPath = "/org/freedesktop/portal/desktop";
constexpr auto portalInterface = "org.freedesktop.portal.Settings";
constexpr auto settingGroup = "org.gnome.desktop.interface";
constexpr auto settingKey = "enable-animations";

bool toolkitReducesMotion() {
  for (const char* name : {"gtk-4.0/settings.ini", "gtk-3.0/settings.ini"}) {
    const QString file = QStandardPaths::locate(QStandardPaths::GenericConfigLocation, name);
    if (file.isEmpty()) continue;
    const QSettings settings(file, QSettings::IniFormat);
    const QString key = QStringLiteral("Settings/gtk-enable-animations");
    if (settings.contains(key)) return !settings.value(key).toBool();
  }
  return false;
}

/// Connecting where no bus runs would make the bus library start one.
bool hasSessionBus() {
  return qEnvironmentVariableIsSet("DBUS_SESSION_BUS_ADDRESS") ||
         QFile::exists(qEnvironmentVariable("XDG_RUNTIME_DIR") + "/bus");
}

/// The portal wraps an answer in a variant once or twice, by its version.
QVariant unwrapped(QVariant value) {
  while (value.canConvert<QDBusVariant>()) value = value.value<QDBusVariant>().variant();
  return value;
}

}  // namespace

XdgMotionPreference::XdgMotionPreference() {
  if (qEnvironmentVariableIsSet(environmentName)) {
    _reduced = qEnvironmentVariableIntValue(environmentName) != 0;
    return;
  }
  _reduced = toolkitReducesMotion();
  if (hasSessionBus()) askPortal();
}

void XdgMotionPreference::askPortal() {
  QDBusConnection bus = QDBusConnection::sessionBus();
  if (!bus.isConnected()) return;
  bus.connect(portalService, portalPath, portalInterface, "SettingChanged", this,
              SLOT(takeSetting(QString, QString, QDBusVariant)));

  QDBusMessage question =
      QDBusMessage::createMethodCall(portalService, portalPath, portalInterface, "Read");
  question << settingGroup << settingKey;
  auto* answer = new QDBusPendingCallWatcher(bus.asyncCall(question), this);
  connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer] {
    const QDBusPendingReply<QDBusVariant> reply = *answer;
    if (reply.isValid()) takeSetting(settingGroup, settingKey, reply.value());
    answer->deleteLater();
  });
}

void XdgMotionPreference::takeSetting(const QString& group, const QString& key,
                                      const QDBusVariant& value) {
  if (group != settingGroup || key != settingKey) return;
  setReduced(!unwrapped(value.variant()).toBool());
}

void XdgMotionPreference::setReduced(bool reduced) {
  if (reduced == _reduced) return;
  _reduced = reduced;
  if (_listener) _listener();
}

}  // namespace klarvik
