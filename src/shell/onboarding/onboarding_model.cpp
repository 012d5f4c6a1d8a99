#include "shell/onboarding/onboarding_model.h"

#include "places/disk_layout.h"
#include "platform/file_system.h"
#include "translation/translation.h"

namespace klarvik {

namespace {

constexpr int permissionStep = 1;
constexpr std::chrono::seconds betweenLooks{2};

}  // namespace

OnboardingModel::OnboardingModel(PermissionsManager& permissions, const Desktop& desktop,
                                 QObject* parent)
    : QObject(parent),
      _permissions(permissions),
      _defaults(desktop.defaults),
      _stepCount(layoutFor(desktop.files.home()).asksForFullDiskAccess() ? 3 : 2),
      _showMenuBar(desktop.defaults, desktop.notifications, "showMenuBar"),
      _clock(desktop.clock) {
  connect(&_permissions, &PermissionsManager::hasFullDiskAccessChanged, this,
          &OnboardingModel::isGrantedChanged);
  connect(this, &OnboardingModel::isGrantedChanged, this, &OnboardingModel::buttonTitleChanged);
  connect(this, &OnboardingModel::stepChanged, this, &OnboardingModel::buttonTitleChanged);
  connect(this, &OnboardingModel::stepChanged, this, &OnboardingModel::followPermission);
}

QString OnboardingModel::buttonTitle() const {
  if (isLastStep()) return translate("Onboarding", "Run first scan");
  const bool asks = _step == permissionStep && !isGranted();
  return asks ? translate("Onboarding", "Open System Settings")
              : translate("Onboarding", "Continue");
}

void OnboardingModel::proceed() {
  if (isLastStep()) {
    finish(true);
  } else if (_step == permissionStep && !isGranted()) {
    openSettings();
  } else {
    goOn();
  }
}

void OnboardingModel::later() {
  if (isLastStep()) finish(false);
}

void OnboardingModel::openSettings() {
  _permissions.openFullDiskAccessSettings();
}

void OnboardingModel::reopen() {
  _permissions.relaunch();
}

void OnboardingModel::goOn() {
  ++_step;
  emit stepChanged();
}

void OnboardingModel::followPermission() {
  _looks.reset();
  const bool isAsking = _step == permissionStep && !isLastStep();
  if (isAsking) _looks.emplace(_clock, betweenLooks, [this] { _permissions.refreshAccess(); });
}

void OnboardingModel::finish(bool scans) {
  if (_isFinished) return;
  _isFinished = true;
  _defaults.set("onboarding_complete", true);
  _defaults.set("fda_prompt_shown", true);
  emit finished(scans);
}

}  // namespace klarvik
