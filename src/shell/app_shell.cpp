#include "shell/app_shell.h"

namespace klarvik {

AppShell::AppShell(const std::vector<LandedPane>& panes, AppState& appState, SharedState& shared,
                   AppCommands& commands, const Desktop& desktop, QObject* parent)
    : QObject(parent),
      _sidebar(panes, appState, shared.scanCoordinator(), shared.toolActivity(), shared.navigator(),
               desktop.formatting),
      _disk(shared.diskMonitor(), desktop),
      _trash(shared.trashMonitor(), shared.permissionsManager(), desktop),
      _panes(panes, shared.navigator()),
      _access(shared.permissionsManager(), desktop),
      _commands(commands),
      _removalNotice(shared.removalNotice()) {
  connect(&_removalNotice, &RemovalNotice::changed, this, &AppShell::removalNoticeChanged);
}

QString AppShell::removalNotice() const {
  return QString::fromStdString(_removalNotice.text());
}

}  // namespace klarvik
