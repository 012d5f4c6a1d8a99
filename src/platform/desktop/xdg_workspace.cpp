#include "platform/desktop/xdg_workspace.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDesktopServices>
#include <QProcess>
#include <QStandardPaths>
#include <QUrl>
#include <array>

namespace klarvik {
namespace {

struct SettingsPage {
  const char* desktop;  // as XDG_CURRENT_DESKTOP names it
  const char* program;
  const char* page;
};

// Where each desktop lists what its programs may read.
constexpr std::array<SettingsPage, 2> settingsPages{{
    {"GNOME", "gnome-control-center", "applications"},
    {"KDE", "systemsettings", "kcm_flatpak"},
}};

// The program outlives this one, and with it whoever reads what is printed: a pipe that nobody
// holds any more would be its end.
bool start(const QString& program, const QStringList& arguments) {
  QProcess process;
  process.setProgram(program);
  process.setArguments(arguments);
  process.setStandardInputFile(QProcess::nullDevice());
  process.setStandardOutputFile(QProcess::nullDevice());
  process.setStandardErrorFile(QProcess::nullDevice());
  return process.startDetached();
}

bool openPrivacySettings() {
  const auto desktops = qEnvironmentVariable("XDG_CURRENT_DESKTOP").split(':');
  for (const SettingsPage& candidate : settingsPages) {
    if (!desktops.contains(QLatin1String(candidate.desktop))) continue;
    const QString program = QStandardPaths::findExecutable(candidate.program);
    return !program.isEmpty() && start(program, {candidate.page});
  }
  return false;
}

bool openOnDisk(const Path& folder) {
  const auto address = QByteArray::fromStdString(fileAddress(folder));
  return QDesktopServices::openUrl(QUrl::fromEncoded(address));
}

QDBusPendingCall askFileManagerToShow(const Path& disk) {
  auto call = QDBusMessage::createMethodCall("org.freedesktop.FileManager1",
                                             "/org/freedesktop/FileManager1",
                                             "org.freedesktop.FileManager1", "ShowItems");
  call << QStringList{QString::fromStdString(fileAddress(disk))} << QString();
  return QDBusConnection::sessionBus().asyncCall(call);
}

}  // namespace

std::string fileAddress(const Path& disk) {
  return "file://" + QByteArray::fromStdString(disk.native()).toPercentEncoding("/").toStdString();
}

bool XdgWorkspace::openUrl(const std::string& url) {
  if (url.starts_with("x-apple.systempreferences:")) return openPrivacySettings();
  const QUrl address(QString::fromStdString(url), QUrl::StrictMode);
  return address.isValid() && !address.isRelative() && QDesktopServices::openUrl(address);
}

bool XdgWorkspace::openFolder(const Path& folder) {
  return openOnDisk(_files.diskPath(folder));
}

void XdgWorkspace::reveal(const Path& item) {
  const Path disk = _files.diskPath(item);
  auto* watcher =
      new QDBusPendingCallWatcher(askFileManagerToShow(disk), QCoreApplication::instance());
  QObject::connect(watcher, &QDBusPendingCallWatcher::finished, watcher, [watcher, disk] {
    if (watcher->isError()) openOnDisk(disk.parent_path());
    watcher->deleteLater();
  });
}

void XdgWorkspace::relaunch() {
  _hasSuccessor = true;
  QCoreApplication::quit();
}

void XdgWorkspace::startSuccessor() const {
  if (!_hasSuccessor) return;
  start(QCoreApplication::applicationFilePath(), QCoreApplication::arguments().mid(1));
}

}  // namespace klarvik
