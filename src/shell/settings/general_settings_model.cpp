#include "shell/settings/general_settings_model.h"

#include <QSysInfo>

#include "panes/kit/row_text.h"
#include "places/disk_layout.h"
#include "platform/application_info.h"
#include "platform/desktop_services.h"
#include "platform/file_system.h"
#include "state/set_if_changed.h"
#include "translation/translation.h"

namespace klarvik {

LaunchAtLogin::LaunchAtLogin(LoginItem& loginItem, QObject* parent)
    : QObject(parent), _loginItem(loginItem), _status(loginItem.status()) {}

void LaunchAtLogin::toggle() {
  const bool wanted = !isOn();
  const bool isEnabled = _loginItem.status() == LoginItem::Status::enabled;
  if (wanted && !isEnabled) _loginItem.registerProgram();
  if (!wanted && isEnabled) _loginItem.unregisterProgram();
  if (setIfChanged(_status, _loginItem.status())) emit changed();
}

GeneralSettingsModel::GeneralSettingsModel(PermissionsManager& permissions, LoginItem& loginItem,
                                           const Desktop& desktop, QObject* parent)
    : QObject(parent),
      _permissions(permissions),
      _desktop(desktop),
      _launchAtLogin(loginItem),
      _showMenuBar(desktop.defaults, desktop.notifications, "showMenuBar"),
      _useTrash(desktop.defaults, desktop.notifications, "useTrash"),
      _confirmDelete(desktop.defaults, desktop.notifications, "confirmDelete"),
      _backgroundScanOnLaunch(desktop.defaults, desktop.notifications, "backgroundScanOnLaunch"),
      _includeDeveloperJunk(desktop.defaults, desktop.notifications, "includeDeveloperJunk") {
  connect(&_permissions, &PermissionsManager::hasFullDiskAccessChanged, this,
          &GeneralSettingsModel::isGrantedChanged);
}

QString GeneralSettingsModel::versionLine() const {
  return QStringLiteral("Klarvik %1 (%2)")
      .arg(QString::fromStdString(appVersion(_desktop.info)),
           QString::fromStdString(buildNumber(_desktop.info)));
}

QString GeneralSettingsModel::systemLine() const {
  const Words& words = layoutFor(_desktop.files.home()).words;
  return programText(words.systemLine).arg(QSysInfo::prettyProductName());
}

bool GeneralSettingsModel::hasWebsite() const {
  return !websitePage(_desktop.info, "").empty();
}

bool GeneralSettingsModel::hasSupport() const {
  return !supportLink(_desktop.info).empty();
}

void GeneralSettingsModel::openSystemSettings() {
  _permissions.openFullDiskAccessSettings();
}

void GeneralSettingsModel::reopen() {
  _permissions.relaunch();
}

void GeneralSettingsModel::showOnboardingAgain() {
  _desktop.defaults.remove("onboarding_complete");
  _desktop.defaults.remove("fda_prompt_shown");
}

void GeneralSettingsModel::openPrivacy() {
  _desktop.workspace.openUrl(websitePage(_desktop.info, "privacy"));
}

void GeneralSettingsModel::openTerms() {
  _desktop.workspace.openUrl(websitePage(_desktop.info, "terms"));
}

void GeneralSettingsModel::openSupport() {
  _desktop.workspace.openUrl(supportLink(_desktop.info));
}

}  // namespace klarvik
