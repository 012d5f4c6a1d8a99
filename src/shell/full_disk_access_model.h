#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>
#include <QString>

#include "platform/platform.h"
#include "state/permissions_manager.h"

namespace klarvik {

/// The sheet that asks for Full Disk Access: once ever at a start, and once in each run for the
/// tool that needs it first. Whatever waits for it goes on when it is closed. Main thread only.
class FullDiskAccessModel : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("The shell makes it.")
  Q_PROPERTY(bool isPresented READ isPresented NOTIFY isPresentedChanged)
  Q_PROPERTY(bool isGranted READ isGranted NOTIFY isGrantedChanged)
  Q_PROPERTY(QString symbol READ symbol NOTIFY isGrantedChanged)
  Q_PROPERTY(QString title READ title NOTIFY isGrantedChanged)
  Q_PROPERTY(QString text READ text NOTIFY isGrantedChanged)
  Q_PROPERTY(QString footerTitle READ footerTitle NOTIFY isGrantedChanged)
  Q_PROPERTY(bool showsIdentityNote READ showsIdentityNote NOTIFY isGrantedChanged)

 public:
  FullDiskAccessModel(PermissionsManager& permissions, const Desktop& desktop,
                      QObject* parent = nullptr);

  [[nodiscard]] bool isPresented() const;
  [[nodiscard]] bool isGranted() const { return _permissions.hasFullDiskAccess(); }
  [[nodiscard]] QString symbol() const;
  [[nodiscard]] QString title() const;
  [[nodiscard]] QString text() const;
  [[nodiscard]] QString footerTitle() const;
  [[nodiscard]] bool showsIdentityNote() const;

  /// At a start: presents itself if the permission is missing and it has never been asked for.
  void askOnce();
  Q_INVOKABLE void openSettings();
  Q_INVOKABLE void dismiss();

 signals:
  void isPresentedChanged();
  void isGrantedChanged();

 private:
  void setShowsSetup(bool shows);

  PermissionsManager& _permissions;
  const Desktop& _desktop;
  bool _showsPermissionSetup = false;
};

}  // namespace klarvik
