#pragma once

#include <gtest/gtest.h>

#include <optional>
#include <utility>

#include "main_loop.h"
#include "scripted_scan.h"
#include "state/app_state.h"

namespace klarvik {

inline JunkItem junk(const Path& path, std::int64_t size) {
  return {.name = path.filename().string(), .path = path, .size = size, .modifiedDate = {}};
}

inline CleanCategory categoryOf(CategoryType type, std::vector<JunkItem> items) {
  return {.type = type, .items = std::move(items)};
}

/// An `AppState` whose scans do what the test tells them to, on any `DesktopAround` with the
/// members of a test's desktop.
template <typename DesktopAround>
class AppStateFixture : public ::testing::Test {
 protected:
  ~AppStateFixture() override {
    state.reset();
    turnMainLoop();
  }

  /// The scan of `state` ends with `found`.
  void scanAndFind(const std::vector<CleanCategory>& found) {
    const int run = scans.runsEnded();
    state->startScan();
    scans.finish(run, found);
    ASSERT_TRUE(turnMainLoopUntil([&] { return isDone(); }));
  }

  [[nodiscard]] bool isDone() const { return is(AppState::Done{}); }
  [[nodiscard]] bool is(const AppState::ScanState& expected) const {
    return state->scanState() == expected;
  }
  [[nodiscard]] bool isCleanDone() const {
    return std::holds_alternative<AppState::CleanDone>(state->scanState());
  }
  [[nodiscard]] ToolActivity::State shownActivity() const { return activity.state("smartScan"); }

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
