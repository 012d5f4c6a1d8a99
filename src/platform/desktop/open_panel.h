#pragma once

#include <QDBusConnection>
#include <QDBusPendingCall>
#include <QDBusServiceWatcher>
#include <QFileDialog>
#include <QObject>
#include <QString>
#include <QVariantMap>
#include <functional>
#include <memory>
#include <optional>

#include "platform/desktop_services.h"
#include "platform/file_system.h"

namespace klarvik {

/// The folder dialog of the user's desktop, asked for through its portal. Where there is none, or
/// one that cannot choose folders, `fallback` is asked instead. Main thread only.
class PortalOpenPanel final : public QObject, public OpenPanel {
  Q_OBJECT
 public:
  /// The user's session bus, unless another is named, is connected to when a dialog is asked for.
  PortalOpenPanel(const FileSystem& files, OpenPanel& fallback,
                  std::optional<QDBusConnection> bus = std::nullopt);

  /// An open dialog belongs to another program, which alone can bring it to the front.
  void chooseFolders(const Request& request, Answer answer) override;

 private slots:
  void responded(uint code, const QVariantMap& results);

 private:
  void open();
  void listenTo(const QString& dialog);
  void whenAnswered(const QDBusPendingCall& call,
                    std::function<void(const QDBusMessage& reply)> act);
  void fallBack();
  /// Ends the request that is open, and hands out its answer.
  Answer close();

  const FileSystem& _files;
  OpenPanel& _fallback;
  std::optional<QDBusConnection> _bus;
  QDBusServiceWatcher _portal;
  Request _request;
  Answer _answer;   // empty while no dialog is open
  QString _dialog;  // the path on the bus of what will tell what was chosen
  int _dialogs = 0;
};

/// The folder panel that Qt draws itself, for desktops without a portal: those of Qt's that ask the
/// desktop let choose a single folder.
/// Needs a `QApplication` as long as it is in use.
class QtOpenPanel final : public OpenPanel {
 public:
  explicit QtOpenPanel(const FileSystem& files);

  void chooseFolders(const Request& request, Answer answer) override;

 private:
  [[nodiscard]] std::vector<Path> chosen() const;

  const FileSystem& _files;
  std::unique_ptr<QFileDialog> _dialog;
};

}  // namespace klarvik
