#pragma once

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <functional>
#include <optional>
#include <string>

#include "state/shared_state.h"
#include "support/application/main_loop.h"
#include "support/fake_desktop.h"
#include "thread_watch.h"

namespace klarvik {

/// What the pane of every tool is tested in: a program of its own with a main loop, over a real
/// disk. A test can put faults under the pane, and hold threads up at `gate`.
class PaneFixture : public ::testing::Test {
 protected:
  using Operation = FaultInjectingFileSystem::Operation;
  static constexpr std::int64_t kilobyte = 1'000;
  static constexpr std::int64_t megabyte = 1'000'000;
  static constexpr std::int64_t mebibyte = 1'048'576;

  explicit PaneFixture(const Path& home = macHome) : desk(std::nullopt, home) {}

  void TearDown() override {
    gate.open();
    desk.trashGate.open();
  }

  /// Turns the main loop, and moves the clock on, until `reached` holds. False when it never does.
  [[nodiscard]] bool turnUntil(const std::function<bool()>& reached) {
    return turnMainLoopUntil(reached,
                             [this] { desk.clock.advance(std::chrono::milliseconds(20)); });
  }
  /// For a thread of the pane's: waits at the gate.
  void waitAtGate() {
    passers.watchThisThread();
    gate.pass();
  }
  /// Opens the gate, and turns the main loop until whoever has waited there is through with all it
  /// does and the pane has been handed what it brings. False when that never comes.
  [[nodiscard]] bool letGo() {
    gate.open();
    const bool haveEnded = turnUntil([this] { return passers.allHaveEnded(); });
    QCoreApplication::sendPostedEvents();
    desk.clock.advance(std::chrono::seconds(1));
    QCoreApplication::sendPostedEvents();
    return haveEnded;
  }
  [[nodiscard]] Path inHome(const std::string& place) const { return desk.files.home() / place; }
  [[nodiscard]] std::size_t trashCount() const {
    return desk.desktop.trash.list().value_or(std::vector<Path>{}).size();
  }
  /// What the tool shows and reports of itself.
  [[nodiscard]] ToolActivity::State activityOf(const std::string& tool) {
    return shared.toolActivity().state(tool);
  }
  [[nodiscard]] std::optional<ScanCoordinator::Total> totalOf(const std::string& tool) {
    const auto& totals = shared.scanCoordinator().totals();
    const auto found = totals.find(tool);
    if (found == totals.end()) return std::nullopt;
    return found->second;
  }
  void denyFullDiskAccess() {
    desk.denyFullDiskAccess();
    shared.permissionsManager().refreshAccess();
  }
  void grantFullDiskAccess() {
    desk.grantFullDiskAccess();
    shared.permissionsManager().refreshAccess();
  }

  Gate gate;
  ThreadWatch passers;
  FakeDesktopOnDisk desk;
  FaultInjectingFileSystem& files = desk.files;
  const Desktop& desktop = desk.desktop;
  SharedState shared{desktop};
};

}  // namespace klarvik
