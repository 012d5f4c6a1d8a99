#include "shell/full_disk_access_model.h"

#include "platform/application_info.h"
#include "platform/user_defaults.h"
#include "state/set_if_changed.h"
#include "translation/translation.h"

namespace klarvik {

namespace {

constexpr const char* promptShownKey = "fda_prompt_shown";

}  // namespace

FullDiskAccessModel::FullDiskAccessModel(PermissionsManager& permissions, const Desktop& desktop,
                                         QObject* parent)
    : QObject(parent), _permissions(permissions), _desktop(desktop) {
  connect(&_permissions, &PermissionsManager::isRequestingAccessChanged, this,
          &FullDiskAccessModel::isPresentedChanged);
  connect(&_permissions, &PermissionsManager::hasFullDiskAccessChanged, this,
          &FullDiskAccessModel::isGrantedChanged);
}

bool FullDiskAccessModel::isPresented() const {
  return _showsPermissionSetup || _permissions.isRequestingAccess();
}

QString FullDiskAccessModel::symbol() const {
  return isGranted() ? QStringLiteral("checkmark.shield.fill") : QStringLiteral("lock.shield.fill");
}

QString FullDiskAccessModel::title() const {
  return isGranted() ? translate("Shell", "Full Disk Access granted")
                     : translate("Shell", "One permission to set up");
}

QString FullDiskAccessModel::text() const {
  return isGranted()
             ? translate("Shell",
                         "Klarvik can measure every location Storage settings keeps out of sight.")
             : translate(
                   "Shell",
                   "macOS keeps caches, logs and backups behind Full Disk Access. Without it, some "
                   "categories will show 0 bytes.");
}

QString FullDiskAccessModel::footerTitle() const {
  return isGranted() ? translate("Shell", "Continue") : translate("Shell", "Skip for now");
}

bool FullDiskAccessModel::showsIdentityNote() const {
  return !isGranted() && !hasSigningIdentity(_desktop.info);
}

void FullDiskAccessModel::askOnce() {
  if (_desktop.defaults.boolean(promptShownKey, false)) return;
  _permissions.refreshAccess();
  setShowsSetup(!isGranted());
  _desktop.defaults.set(promptShownKey, true);
}

void FullDiskAccessModel::openSettings() {
  _permissions.openFullDiskAccessSettings();
}

void FullDiskAccessModel::dismiss() {
  setShowsSetup(false);
  if (_permissions.isRequestingAccess()) _permissions.finishAccessRequest();
}

void FullDiskAccessModel::setShowsSetup(bool shows) {
  if (setIfChanged(_showsPermissionSetup, shows)) emit isPresentedChanged();
}

}  // namespace klarvik
