#include "shell/app_shell_model.h"

#include "platform/user_defaults.h"
#include "state/set_if_changed.h"

namespace klarvik {

AppShellModel::AppShellModel(const std::vector<PaneEntry>& panes, AppState& appState,
                             SharedState& shared, AppCommandsModel& commands,
                             const Desktop& desktop, QObject* parent)
    : QObject(parent),
      _sidebar(panes, appState, shared.scanCoordinator(), shared.toolActivity(), shared.navigator(),
               desktop.formatting),
      _disk(shared.diskMonitor(), desktop),
      _trash(shared.trashMonitor(), shared.permissionsManager(), desktop),
      _panes(panes, shared.navigator()),
      _access(shared.permissionsManager(), desktop),
      _commands(commands),
      _removalNotice(shared.removalNotice()),
      _onSettingsNotSaved(desktop.notifications.observe(defaultsNotSavedNotification, [this] {
        if (setIfChanged(_tellsOfSettings, true)) emit noticeChanged();
      })) {
  connect(&_removalNotice, &RemovalNotice::changed, this, &AppShellModel::noticeChanged);
}

QString AppShellModel::noticeHeadline() const {
  return _tellsOfSettings ? tr("Your settings cannot be saved")
                          : tr("Something was left as it was");
}

QString AppShellModel::notice() const {
  if (_tellsOfSettings) {
    return tr(
        "They hold until Klarvik quits. Is the disk full, or the folder of settings read-only?");
  }
  return QString::fromStdString(_removalNotice.text());
}

void AppShellModel::dismissNotice() {
  if (setIfChanged(_tellsOfSettings, false)) {
    emit noticeChanged();
  } else {
    _removalNotice.dismiss();
  }
}

}  // namespace klarvik
