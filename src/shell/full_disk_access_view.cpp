#include "shell/full_disk_access_view.h"

#include "platform/application_info.h"
#include "platform/user_defaults.h"
#include "state/set_if_changed.h"

namespace klarvik {

namespace {

constexpr const char* promptShownKey = "fda_prompt_shown";

}  // namespace

FullDiskAccessView::FullDiskAccessView(PermissionsManager& permissions, const Desktop& desktop,
                                       QObject* parent)
    : QObject(parent), _permissions(permissions), _desktop(desktop) {
  connect(&_permissions, &PermissionsManager::isRequestingAccessChanged, this,
          &FullDiskAccessView::isPresentedChanged);
  connect(&_permissions, &PermissionsManager::hasFullDiskAccessChanged, this,
          &FullDiskAccessView::isGrantedChanged);
}

bool FullDiskAccessView::isPresented() const {
  return _showsPermissionSetup || _permissions.isRequestingAccess();
}

QString FullDiskAccessView::symbol() const {
  return isGranted() ? QStringLiteral("checkmark.shield.fill") : QStringLiteral("lock.shield.fill");
}

QString FullDiskAccessView::title() const {
  return isGranted() ? QStringLiteral("Full Disk Access granted")
                     : QStringLiteral("One permission to set up");
}

QString FullDiskAccessView::text() const {
  return isGranted()
             ? QStringLiteral(
                   "Klarvik can measure every location Storage settings keeps out of sight.")
             : QStringLiteral(
                   "macOS keeps caches, logs and backups behind Full Disk Access. Without it, some "
                   "categories will show 0 bytes.");
}

QString FullDiskAccessView::footerTitle() const {
  return isGranted() ? QStringLiteral("Continue") : QStringLiteral("Skip for now");
}

bool FullDiskAccessView::showsIdentityNote() const {
  return !isGranted() && !hasSigningIdentity(_desktop.info);
}

void FullDiskAccessView::askOnce() {
  if (_desktop.defaults.boolean(promptShownKey, false)) return;
  _permissions.refreshAccess();
  setShowsSetup(!isGranted());
  _desktop.defaults.set(promptShownKey, true);
}

void FullDiskAccessView::openSettings() {
  _permissions.openFullDiskAccessSettings();
}

void FullDiskAccessView::dismiss() {
  setShowsSetup(false);
  if (_permissions.isRequestingAccess()) _permissions.finishAccessRequest();
}

void FullDiskAccessView::setShowsSetup(bool shows) {
  if (setIfChanged(_showsPermissionSetup, shows)) emit isPresentedChanged();
}

}  // namespace klarvik
