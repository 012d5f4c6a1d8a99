#pragma once

#include <optional>

#include "platform/platform.h"
#include "state/disk_monitor.h"
#include "state/last_removal.h"
#include "state/permissions_manager.h"
#include "state/removal_notice.h"
#include "state/scan_coordinator.h"
#include "state/scan_history.h"
#include "state/section.h"
#include "state/tool_activity.h"
#include "state/trash_monitor.h"
#include "state/update_manager.h"

namespace klarvik {

/// The objects of which the process has one each.
///
/// Made once in `main`, on the main thread, after the `Desktop` and before the `AppState` and every
/// window; it must outlive those, and the `Desktop` must outlive it. Destroying it waits for the
/// Trash entry that is being measured or removed.
class SharedState {
 public:
  explicit SharedState(const Desktop& desktop);
  SharedState(const SharedState&) = delete;
  SharedState& operator=(const SharedState&) = delete;

  [[nodiscard]] Navigator& navigator() { return _navigator; }
  [[nodiscard]] ToolActivity& toolActivity() { return _toolActivity; }
  [[nodiscard]] ScanCoordinator& scanCoordinator() { return _scanCoordinator; }
  [[nodiscard]] ScanHistory& scanHistory() { return _scanHistory; }
  [[nodiscard]] PermissionsManager& permissionsManager() { return _permissionsManager; }
  [[nodiscard]] DiskMonitor& diskMonitor() { return _diskMonitor; }
  [[nodiscard]] TrashMonitor& trashMonitor() { return _trashMonitor; }
  [[nodiscard]] RemovalNotice& removalNotice() { return _removalNotice; }
  [[nodiscard]] LastRemoval& lastRemoval() { return _lastRemoval; }
  /// Made at first use, since that starts the updater.
  UpdateManager& updateManager();

 private:
  const Desktop& _desktop;
  Navigator _navigator;
  ToolActivity _toolActivity;
  ScanCoordinator _scanCoordinator;
  ScanHistory _scanHistory;
  PermissionsManager _permissionsManager;
  DiskMonitor _diskMonitor;
  RemovalNotice _removalNotice;
  TrashMonitor _trashMonitor;
  LastRemoval _lastRemoval;
  std::optional<UpdateManager> _updateManager;
};

}  // namespace klarvik
