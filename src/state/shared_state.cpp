#include "state/shared_state.h"

namespace klarvik {

SharedState::SharedState(const Desktop& desktop)
    : _desktop(desktop),
      _toolActivity(desktop.clock),
      _scanCoordinator(desktop.defaults),
      _scanHistory(desktop.defaults, desktop.clock),
      _permissionsManager(desktop),
      _diskMonitor(desktop),
      _trashMonitor(desktop, _removalNotice),
      _lastRemoval(desktop, _removalNotice) {}

UpdateManager& SharedState::updateManager() {
  if (!_updateManager) _updateManager.emplace(_desktop);
  return *_updateManager;
}

}  // namespace klarvik
