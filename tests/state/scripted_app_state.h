#pragma once

#include <optional>

#include "scripted_scan.h"
#include "state/app_state.h"
#include "state/scan_history.h"

namespace klarvik {

/// An `AppState` whose scans do what the test tells them to, with all that it stands on. Works on
/// any `DesktopAround` with the members of a test's desktop.
template <typename DesktopAround>
struct ScriptedAppState {
  DesktopAround around;
  Desktop desktop = around.around(around.files, around.trash, around.clock);
  ToolActivity activity{around.clock};
  ScanCoordinator coordinator{around.defaults};
  ScanHistory history{around.defaults, around.clock};
  ScriptedScan scans;
  std::optional<AppState> state{std::in_place, desktop, activity,    coordinator,
                                history,       nullptr, scans.scan()};
};

}  // namespace klarvik
