#include "shell/app_shell_model.h"

#include "panes/kit/row_text.h"

#include "platform/user_defaults.h"
#include "state/set_if_changed.h"
#include "translation/translation.h"

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
      _lastRemoval(shared.lastRemoval()),
      _trashMonitor(shared.trashMonitor()),
      _formatting(desktop.formatting),
      _onSettingsNotSaved(desktop.notifications.observe(defaultsNotSavedNotification, [this] {
        if (setIfChanged(_tellsOfSettings, true)) emit noticeChanged();
      })) {
  connect(&_removalNotice, &RemovalNotice::changed, this, &AppShellModel::noticeChanged);
  connect(&_lastRemoval, &LastRemoval::changed, this, &AppShellModel::removalChanged);
  connect(&_trashMonitor, &TrashMonitor::changed, this, &AppShellModel::removalChanged);
}

QString AppShellModel::noticeHeadline() const {
  return _tellsOfSettings ? translate("Shell", "Your settings cannot be saved")
                          : translate("Shell", "Something was left as it was");
}

QString AppShellModel::notice() const {
  if (_tellsOfSettings) {
    return translate(
        "Shell",
        "They hold until Klarvik quits. Is the disk full, or the folder of settings read-only?");
  }
  return QString::fromStdString(_removalNotice.text());
}

QString AppShellModel::removalHeadline() const {
  const auto& removal = _lastRemoval.summary();
  if (!removal) return {};
  if (!removal->restoredCount) {
    if (!removal->application.empty()) {
      return translate("Shell", "“%1” is uninstalled").arg(printableText(removal->application));
    }
    return removal->itemCount == 1 ? translate("Shell", "1 item moved to the Trash")
                                   : translate("Shell", "%n items moved to the Trash", nullptr,
                                               plural(removal->itemCount));
  }
  return *removal->restoredCount == 1 ? translate("Shell", "1 item is back where it was")
                                      : translate("Shell", "%n items are back where they were",
                                                  nullptr, plural(*removal->restoredCount));
}

QString AppShellModel::removalDetail() const {
  const auto& removal = _lastRemoval.summary();
  if (!removal) return {};
  if (!removal->restoredCount) {
    if (removal->itemCount == 0) return {};
    return translate("Shell", "%1. The space is free once the Trash is emptied.")
        .arg(byteText(removal->bytes, _formatting));
  }
  return isRestored()
             ? QString()
             : translate(
                   "Shell",
                   "The others stay in the Trash: something stands in their places, or they have "
                   "gone from it.");
}

bool AppShellModel::isRestored() const {
  const auto& removal = _lastRemoval.summary();
  return removal && removal->restoredCount == removal->itemCount;
}

bool AppShellModel::canRestore() const {
  return _lastRemoval.canRestore() && _trashMonitor.itemCount() > 0;
}

void AppShellModel::dismissNotice() {
  if (setIfChanged(_tellsOfSettings, false)) {
    emit noticeChanged();
  } else {
    _removalNotice.dismiss();
  }
}

}  // namespace klarvik
