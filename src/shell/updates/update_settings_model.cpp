#include "shell/updates/update_settings_model.h"

#include "panes/kit/palette.h"
#include "platform/application_info.h"
#include "platform/desktop_services.h"
#include "state/set_if_changed.h"
#include "translation/translation.h"

namespace klarvik {
namespace {

using namespace std::chrono_literals;

const char* symbolFor(const UpdateManager::UpdateAvailable&) {
  return "arrow.down.circle.fill";
}
const char* symbolFor(const UpdateManager::Failed&) {
  return "exclamationmark.triangle.fill";
}
const char* symbolFor(const UpdateManager::Unknown&) {
  return "circle.dashed";
}
const char* symbolFor(const UpdateManager::Checking&) {
  return "arrow.triangle.2.circlepath";
}
const char* symbolFor(const UpdateManager::UpToDate&) {
  return "checkmark.circle.fill";
}

QColor colorFor(const UpdateManager::UpdateAvailable&) {
  return Palette().accent;
}
QColor colorFor(const UpdateManager::Failed&) {
  return Palette().review;
}
QColor colorFor(const UpdateManager::Unknown&) {
  return Palette().textTertiary;
}
QColor colorFor(const UpdateManager::Checking&) {
  return Palette().accent;
}
QColor colorFor(const UpdateManager::UpToDate&) {
  return Palette().safe;
}

QString titleFor(const UpdateManager::UpdateAvailable& status) {
  return translate("Updates", "Version %1 available").arg(QString::fromStdString(status.version));
}
QString titleFor(const UpdateManager::Failed&) {
  return translate("Updates", "Could not check");
}
QString titleFor(const UpdateManager::Unknown&) {
  return translate("Updates", "Not checked yet");
}
QString titleFor(const UpdateManager::Checking&) {
  return translate("Updates", "Checking…");
}
QString titleFor(const UpdateManager::UpToDate&) {
  return translate("Updates", "Up to date");
}

}  // namespace

UpdateSettingsModel::UpdateSettingsModel(UpdateManager& updateManager, const Desktop& desktop,
                                         QObject* parent)
    : QObject(parent),
      _updateManager(updateManager),
      _desktop(desktop),
      _autoCheck(desktop.updater.automaticallyChecksForUpdates()),
      _timePasses(desktop.clock, 60s, [this] { emit changed(); }) {
  connect(&_updateManager, &UpdateManager::statusChanged, this, &UpdateSettingsModel::changed);
  connect(&_updateManager, &UpdateManager::lastCheckDateChanged, this,
          &UpdateSettingsModel::changed);
}

QString UpdateSettingsModel::version() const {
  return QString::fromStdString(appVersion(_desktop.info) + " (" + buildNumber(_desktop.info) +
                                ")");
}

QString UpdateSettingsModel::symbol() const {
  return std::visit([](const auto& status) { return symbolFor(status); }, _updateManager.status());
}

QColor UpdateSettingsModel::symbolColor() const {
  return std::visit([](const auto& status) { return colorFor(status); }, _updateManager.status());
}

QString UpdateSettingsModel::title() const {
  return std::visit([](const auto& status) { return titleFor(status); }, _updateManager.status());
}

QString UpdateSettingsModel::detail() const {
  return QString::fromStdString(_updateManager.detailText());
}

QString UpdateSettingsModel::buttonTitle() const {
  const bool isAvailable =
      std::holds_alternative<UpdateManager::UpdateAvailable>(_updateManager.status());
  return isAvailable ? translate("Updates", "Install") : translate("Updates", "Check Now");
}

bool UpdateSettingsModel::isChecking() const {
  return std::holds_alternative<UpdateManager::Checking>(_updateManager.status());
}

bool UpdateSettingsModel::hasReleaseNotes() const {
  return !websitePage(_desktop.info, "").empty();
}

void UpdateSettingsModel::checkForUpdates() {
  _updateManager.checkForUpdates();
}

void UpdateSettingsModel::toggleAutoCheck() {
  _desktop.updater.setAutomaticallyChecksForUpdates(!_autoCheck);
  if (setIfChanged(_autoCheck, _desktop.updater.automaticallyChecksForUpdates())) {
    emit autoCheckChanged();
  }
}

void UpdateSettingsModel::openReleaseNotes() {
  _desktop.workspace.openUrl(websitePage(_desktop.info, "releases"));
}

}  // namespace klarvik
