#include "platform/desktop/open_panel.h"

#include <QAbstractItemView>
#include <QCoreApplication>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusPendingCallWatcher>
#include <QFile>
#include <QGuiApplication>
#include <QWindow>
#include <optional>
#include <utility>
#include <vector>

#include "base/paths.h"
#include "platform/file_system.h"

namespace klarvik {
namespace {

constexpr auto service = "org.freedesktop.portal.Desktop";
constexpr auto object = "/org/freedesktop/portal/desktop";
constexpr auto fileChooser = "org.freedesktop.portal.FileChooser";
constexpr auto requestInterface = "org.freedesktop.portal.Request";
/// The first version whose dialogs choose folders.
constexpr uint firstVersion = 3;

QString frontWindow() {
  const QWindow* window = QGuiApplication::focusWindow();
  const bool isX11 = QGuiApplication::platformName() == QLatin1String("xcb");
  return window != nullptr && isX11 ? QStringLiteral("x11:%1").arg(window->winId(), 0, 16)
                                    : QString();
}

/// Bytes of a path, which end with a zero for the portal.
QByteArray bytesOf(const Path& disk) {
  QByteArray bytes = QByteArray::fromStdString(disk.native());
  return bytes.append('\0');
}

std::optional<Path> pathOf(const QString& address) {
  const QByteArray bytes = address.toUtf8();
  constexpr QByteArrayView scheme = "file://";
  if (!bytes.startsWith(scheme)) return std::nullopt;
  return Path(QByteArray::fromPercentEncoding(bytes.mid(scheme.size())).toStdString());
}

}  // namespace

PortalOpenPanel::PortalOpenPanel(const FileSystem& files, OpenPanel& fallback,
                                 std::optional<QDBusConnection> bus)
    : _files(files), _fallback(fallback), _bus(std::move(bus)) {
  _portal.setWatchMode(QDBusServiceWatcher::WatchForUnregistration);
  connect(&_portal, &QDBusServiceWatcher::serviceUnregistered, this, [this] {
    // The dialog has gone with the program that it belonged to.
    if (const Answer answer = close()) answer({});
  });
}

void PortalOpenPanel::chooseFolders(const Request& request, Answer answer) {
  if (_answer) return;
  _request = request;
  _answer = std::move(answer);
  if (!_bus) _bus = QDBusConnection::sessionBus();
  _portal.setConnection(*_bus);
  _portal.setWatchedServices({service});
  auto call =
      QDBusMessage::createMethodCall(service, object, "org.freedesktop.DBus.Properties", "Get");
  call << QString(fileChooser) << QStringLiteral("version");
  whenAnswered(_bus->asyncCall(call), [this](const QDBusMessage& reply) {
    const auto version = reply.arguments().value(0).value<QDBusVariant>().variant().toUInt();
    if (version >= firstVersion) {
      open();
    } else {
      fallBack();
    }
  });
}

void PortalOpenPanel::open() {
  const QString token =
      QStringLiteral("klarvik_%1_%2").arg(QCoreApplication::applicationPid()).arg(++_dialogs);
  const QString sender = _bus->baseService().mid(1).replace(QLatin1Char('.'), QLatin1Char('_'));
  listenTo(QStringLiteral("%1/request/%2/%3").arg(QLatin1String(object), sender, token));

  const QVariantMap options{
      {"handle_token", token}, {"accept_label", QString::fromStdString(_request.prompt)},
      {"modal", true},         {"multiple", true},
      {"directory", true},     {"current_folder", bytesOf(_files.diskPath(_request.start))},
  };
  auto call = QDBusMessage::createMethodCall(service, object, fileChooser, "OpenFile");
  call << frontWindow() << QString::fromStdString(_request.message) << options;
  whenAnswered(_bus->asyncCall(call), [this](const QDBusMessage& reply) {
    // Old portals name the dialog themselves.
    const auto dialog = reply.arguments().value(0).value<QDBusObjectPath>().path();
    if (!dialog.isEmpty() && dialog != _dialog) listenTo(dialog);
  });
}

void PortalOpenPanel::listenTo(const QString& dialog) {
  const auto change = [this](auto connecting) {
    ((*_bus).*connecting)(service, _dialog, requestInterface, QStringLiteral("Response"), this,
                          SLOT(responded(uint, QVariantMap)));
  };
  using Connecting = bool (QDBusConnection::*)(const QString&, const QString&, const QString&,
                                               const QString&, QObject*, const char*);
  if (!_dialog.isEmpty()) change(static_cast<Connecting>(&QDBusConnection::disconnect));
  _dialog = dialog;
  if (!_dialog.isEmpty()) change(static_cast<Connecting>(&QDBusConnection::connect));
}

void PortalOpenPanel::whenAnswered(const QDBusPendingCall& call,
                                   std::function<void(const QDBusMessage& reply)> act) {
  auto* watcher = new QDBusPendingCallWatcher(call, this);
  connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher, act = std::move(act)] {
    watcher->deleteLater();
    if (!_answer) return;
    if (watcher->isError()) {
      fallBack();
    } else {
      act(watcher->reply());
    }
  });
}

void PortalOpenPanel::responded(uint code, const QVariantMap& results) {
  const Answer answer = close();
  if (!answer) return;
  std::vector<Path> folders;
  if (code == 0) {
    for (const QString& address : results.value("uris").toStringList()) {
      const auto disk = pathOf(address);
      const auto folder = disk ? _files.logicalPath(*disk) : std::nullopt;
      const auto attributes = folder ? _files.attributes(*folder) : std::nullopt;
      if (attributes && attributes->kind == FileKind::directory) folders.push_back(*folder);
    }
  }
  answer(folders);
}

void PortalOpenPanel::fallBack() {
  if (Answer answer = close()) _fallback.chooseFolders(_request, std::move(answer));
}

OpenPanel::Answer PortalOpenPanel::close() {
  listenTo({});
  return std::exchange(_answer, {});
}

namespace {

QString shown(const Path& disk) {
  return QFile::decodeName(disk.c_str());
}

/// Nothing in Qt's interface asks for several folders; its lists allow it once they are told.
void allowSeveral(QFileDialog& dialog) {
  for (const char* name : {"listView", "treeView"}) {
    if (auto* list = dialog.findChild<QAbstractItemView*>(name)) {
      list->setSelectionMode(QAbstractItemView::ExtendedSelection);
    }
  }
}

void keepInFront(QFileDialog& dialog) {
  dialog.winId();
  dialog.windowHandle()->setTransientParent(QGuiApplication::focusWindow());
}

}  // namespace

QtOpenPanel::QtOpenPanel(const FileSystem& files) : _files(files) {}

void QtOpenPanel::chooseFolders(const Request& request, Answer answer) {
  if (_dialog && _dialog->isVisible()) {
    _dialog->raise();
    _dialog->activateWindow();
    return;
  }
  _dialog = std::make_unique<QFileDialog>(nullptr, QString::fromStdString(request.message),
                                          shown(_files.diskPath(request.start)));
  _dialog->setOption(QFileDialog::DontUseNativeDialog);
  _dialog->setOption(QFileDialog::ReadOnly);
  _dialog->setOption(QFileDialog::ShowDirsOnly);
  _dialog->setFileMode(QFileDialog::Directory);
  _dialog->setLabelText(QFileDialog::Accept, QString::fromStdString(request.prompt));
  _dialog->setWindowModality(Qt::ApplicationModal);
  allowSeveral(*_dialog);
  keepInFront(*_dialog);
  QObject::connect(_dialog.get(), &QDialog::finished, _dialog.get(),
                   [this, answer = std::move(answer)](int result) {
                     answer(result == QDialog::Accepted ? chosen() : std::vector<Path>());
                   });
  _dialog->show();
}

std::vector<Path> QtOpenPanel::chosen() const {
  std::vector<Path> folders;
  for (const QString& name : _dialog->selectedFiles()) {
    const auto folder = _files.logicalPath(Path(QFile::encodeName(name).toStdString()));
    if (folder) folders.push_back(*folder);
  }
  return folders;
}

}  // namespace klarvik
