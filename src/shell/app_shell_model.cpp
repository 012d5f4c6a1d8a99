#include "shell/app_shell_model.h"

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
      _removalNotice(shared.removalNotice()) {
  connect(&_removalNotice, &RemovalNotice::changed, this, &AppShellModel::removalNoticeChanged);
}

QString AppShellModel::removalNotice() const {
  return QString::fromStdString(_removalNotice.text());
}

}  // namespace klarvik
