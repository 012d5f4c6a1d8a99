#pragma once

#include <optional>

#include "fake_scan.h"
#include "state/app_state.h"
#include "state/scan_history.h"
#include "support/fake_desktop.h"

namespace klarvik {

/// An `AppState` over a real disk whose scans do what the test tells them to, with all that it
/// stands on.
struct FakeAppState {
  FakeDesktopOnDisk around;
  ToolActivity activity{around.clock};
  ScanCoordinator coordinator{around.defaults};
  ScanHistory history{around.defaults, around.clock};
  RemovalNotice notice;
  FakeScan scans{around.files};
  std::optional<AppState> state{std::in_place, around.desktop, activity, coordinator,
                                history,       notice,         nullptr,  scans.scan()};
};

}  // namespace klarvik
