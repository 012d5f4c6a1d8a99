#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>
#include <QString>

#include "panes/kit/stored_switch.h"
#include "platform/desktop_services.h"
#include "platform/platform.h"
#include "state/permissions_manager.h"

namespace klarvik {

/// Whether the program starts at login, as a box on the screen. Read when this is made, and after
/// each change by the box: one that fails snaps back. Main thread only.
class LaunchAtLogin : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("The settings hand it out.")
  Q_PROPERTY(bool isOn READ isOn NOTIFY changed)
  Q_PROPERTY(bool isUnavailable READ isUnavailable NOTIFY changed)

 public:
  /// `loginItem` must outlive this.
  explicit LaunchAtLogin(LoginItem& loginItem, QObject* parent = nullptr);

  [[nodiscard]] bool isOn() const { return _status == LoginItem::Status::enabled; }
  /// This copy of the program is not one that can be started at login.
  [[nodiscard]] bool isUnavailable() const { return _status == LoginItem::Status::notFound; }
  Q_INVOKABLE void toggle();

 signals:
  void changed();

 private:
  LoginItem& _loginItem;
  LoginItem::Status _status;
};

/// The General page of the settings. Its boxes write through at once. Main thread only; everything
/// handed in must outlive it.
class GeneralSettingsModel : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("The program makes it.")
  Q_PROPERTY(klarvik::LaunchAtLogin* launchAtLogin READ launchAtLogin CONSTANT)
  Q_PROPERTY(klarvik::StoredSwitch* showMenuBar READ showMenuBar CONSTANT)
  Q_PROPERTY(klarvik::StoredSwitch* useTrash READ useTrash CONSTANT)
  Q_PROPERTY(klarvik::StoredSwitch* confirmDelete READ confirmDelete CONSTANT)
  Q_PROPERTY(klarvik::StoredSwitch* backgroundScanOnLaunch READ backgroundScanOnLaunch CONSTANT)
  Q_PROPERTY(klarvik::StoredSwitch* includeDeveloperJunk READ includeDeveloperJunk CONSTANT)
  Q_PROPERTY(bool isGranted READ isGranted NOTIFY isGrantedChanged)
  Q_PROPERTY(QString versionLine READ versionLine CONSTANT)
  Q_PROPERTY(QString systemLine READ systemLine CONSTANT)
  Q_PROPERTY(bool hasWebsite READ hasWebsite CONSTANT)
  Q_PROPERTY(bool hasSupport READ hasSupport CONSTANT)

 public:
  GeneralSettingsModel(PermissionsManager& permissions, LoginItem& loginItem,
                       const Desktop& desktop, QObject* parent = nullptr);

  [[nodiscard]] LaunchAtLogin* launchAtLogin() { return &_launchAtLogin; }
  [[nodiscard]] StoredSwitch* showMenuBar() { return &_showMenuBar; }
  [[nodiscard]] StoredSwitch* useTrash() { return &_useTrash; }
  [[nodiscard]] StoredSwitch* confirmDelete() { return &_confirmDelete; }
  [[nodiscard]] StoredSwitch* backgroundScanOnLaunch() { return &_backgroundScanOnLaunch; }
  [[nodiscard]] StoredSwitch* includeDeveloperJunk() { return &_includeDeveloperJunk; }
  [[nodiscard]] bool isGranted() const { return _permissions.hasFullDiskAccess(); }
  [[nodiscard]] QString versionLine() const;
  [[nodiscard]] QString systemLine() const;
  [[nodiscard]] bool hasWebsite() const;
  [[nodiscard]] bool hasSupport() const;

  Q_INVOKABLE void openSystemSettings();
  Q_INVOKABLE void reopen();
  /// At the next start; this session goes on as it is.
  Q_INVOKABLE void showOnboardingAgain();
  Q_INVOKABLE void openPrivacy();
  Q_INVOKABLE void openTerms();
  Q_INVOKABLE void openSupport();

 signals:
  void isGrantedChanged();

 private:
  PermissionsManager& _permissions;
  const Desktop& _desktop;
  LaunchAtLogin _launchAtLogin;
  StoredSwitch _showMenuBar;
  StoredSwitch _useTrash;
  StoredSwitch _confirmDelete;
  StoredSwitch _backgroundScanOnLaunch;
  StoredSwitch _includeDeveloperJunk;
};

}  // namespace klarvik
