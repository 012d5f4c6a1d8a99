#pragma once

#include <cstdint>
#include <functional>
#include <stop_token>
#include <string>
#include <utility>

#include "state/engine_run.h"
#include "state/scan_coordinator.h"
#include "state/section.h"
#include "state/tool_activity.h"

namespace klarvik {

/// The scan of one tool, which the sidebar shows: what it is doing, and what it came to. Cancelling
/// is as `EngineRun` says. Main thread only; everything handed in must outlive it.
class ScanSession {
 public:
  ScanSession(Section tool, ToolActivity& activity, ScanCoordinator& coordinator, Clock& clock);
  /// As `drop`, and waits for what the engine is still at.
  ~ScanSession();

  [[nodiscard]] bool isRunning() const { return _run.isRunning(); }
  /// Whether a scan was ever finished or cancelled.
  [[nodiscard]] bool hasScanned() const { return _run.hasRun(); }
  [[nodiscard]] const std::string& key() const { return _key; }

  template <typename Report, typename Result>
  void start(EngineRun::Job<Report, Result> job) {
    _activity.start(_key);
    _run.start(std::move(job));
  }
  void cancel();
  /// For the end of the owner: no scan arrives any more, nor the turn that one was waiting for.
  void drop();

  /// `fraction`: 0 to 1.
  void showProgress(double fraction);
  /// What the scan came to, in a few words.
  void showSummary(const std::string& summary);
  /// What there is now, after a scan or a removal.
  void setTotal(std::int64_t bytes, std::int64_t items);

  /// Calls `start` once it is the tool's turn, unless there has been a scan by then, and holds the
  /// turn while the scan runs.
  void startInTurn(std::function<void()> start);
  /// The same, of a tool that without Full Disk Access waits for its user.
  void startInTurnWithAccess(PermissionsManager& permissions, std::function<void()> start);
  /// Requested by `drop`.
  [[nodiscard]] std::stop_token dropped() const { return _dropped.get_token(); }

  /// As `BackgroundTasks::deleteInBackground`.
  template <typename Garbage>
  void deleteInBackground(Garbage garbage) {
    _run.deleteInBackground(std::move(garbage));
  }

 private:
  [[nodiscard]] AutoScan autoScan(std::function<void()> start) const;

  const std::string _key;
  ToolActivity& _activity;
  ScanCoordinator& _coordinator;
  Clock& _clock;
  std::stop_source _dropped;
  EngineRun _run;
};

}  // namespace klarvik
