#pragma once

#include <gtest/gtest.h>

#include <utility>

#include "fake_app_state.h"
#include "support/application/main_loop.h"

namespace klarvik {

inline JunkItem junk(const Path& path, std::int64_t size) {
  return {.name = path.filename().string(), .path = path, .size = size, .modifiedDate = {}};
}

inline CleanCategory categoryOf(CategoryType type, std::vector<JunkItem> items) {
  return {.type = type, .items = std::move(items)};
}

class AppStateFixture : public ::testing::Test, protected FakeAppState {
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
};

}  // namespace klarvik
