#include "shell/onboarding/onboarding_view.h"

#include "places/disk_layout.h"
#include "platform/file_system.h"

namespace klarvik {

namespace {

constexpr int permissionStep = 1;

}  // namespace

OnboardingView::OnboardingView(PermissionsManager& permissions, const Desktop& desktop,
                               QObject* parent)
    : QObject(parent),
      _permissions(permissions),
      _defaults(desktop.defaults),
      _stepCount(layoutFor(desktop.files.home()).asksForFullDiskAccess() ? 3 : 2),
      _showMenuBar(desktop.defaults, desktop.notifications, "showMenuBar") {
  connect(&_permissions, &PermissionsManager::hasFullDiskAccessChanged, this,
          &OnboardingView::isGrantedChanged);
  connect(this, &OnboardingView::isGrantedChanged, this, &OnboardingView::buttonTitleChanged);
  connect(this, &OnboardingView::stepChanged, this, &OnboardingView::buttonTitleChanged);
}

QString OnboardingView::buttonTitle() const {
  if (isLastStep()) return QStringLiteral("Run first scan");
  const bool asks = _step == permissionStep && !isGranted();
  return asks ? QStringLiteral("Open System Settings") : QStringLiteral("Continue");
}

void OnboardingView::proceed() {
  if (isLastStep()) {
    finish(true);
  } else if (_step == permissionStep && !isGranted()) {
    openSettings();
  } else {
    goOn();
  }
}

void OnboardingView::later() {
  if (isLastStep()) finish(false);
}

void OnboardingView::openSettings() {
  _permissions.openFullDiskAccessSettings();
}

void OnboardingView::reopen() {
  _permissions.relaunch();
}

void OnboardingView::goOn() {
  ++_step;
  emit stepChanged();
}

void OnboardingView::finish(bool scans) {
  if (_isFinished) return;
  _isFinished = true;
  _defaults.set("onboarding_complete", true);
  _defaults.set("fda_prompt_shown", true);
  emit finished(scans);
}

}  // namespace klarvik
