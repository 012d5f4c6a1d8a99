#include "state/scan_coordinator.h"

#include <algorithm>
#include <chrono>
#include <limits>
#include <utility>

#include "platform/user_defaults.h"
#include "state/engine_run.h"
#include "state/section.h"
#include "state/timers.h"

namespace klarvik {
namespace {

using namespace std::chrono_literals;

/// Place in the order of turns. A key that is no tool's comes last.
int rank(const std::string& key) {
  const Tool* const tool = toolOf(key);
  return tool != nullptr ? tool->turn : std::numeric_limits<int>::max();
}

}  // namespace

/// Waits at the end of the queue until `finishTurn` picks the entry.
struct ScanCoordinator::Turn {
  ScanCoordinator& coordinator;
  const std::string& key;

  [[nodiscard]] bool await_ready() const noexcept { return false; }
  void await_suspend(std::coroutine_handle<> waiter) const {
    coordinator._waiting.push_back({key, waiter});
  }
  void await_resume() const noexcept {}
};

ScanCoordinator::ScanCoordinator(const UserDefaults& defaults, QObject* parent)
    : QObject(parent), _defaults(defaults) {}

ScanCoordinator::~ScanCoordinator() {
  _ending = true;
  for (const Waiter& waiter : std::exchange(_waiting, {})) waiter.resume.resume();
}

void ScanCoordinator::setTotal(const std::string& key, const Total& total) {
  const auto [known, isNew] = _totals.try_emplace(key, total);
  if (!isNew && known->second == total) return;
  known->second = total;
  emit totalsChanged();
}

QCoro::Task<bool> ScanCoordinator::beginAutoScan(std::string key, std::stop_token stop) {
  if (!_defaults.boolean("backgroundScanOnLaunch", true)) co_return false;
  if (!_completedAutoScans.insert(key).second) co_return false;
  co_await waitForTurn(key);
  co_return !stop.stop_requested() && !_ending;
}

QCoro::Task<> ScanCoordinator::waitForTurn(std::string key) {
  if (_busy) co_await Turn{*this, key};
  _busy = true;
}

void ScanCoordinator::finishTurn() {
  if (!_busy) return;
  if (_waiting.empty()) {
    _busy = false;
    return;
  }
  const auto next = std::min_element(
      _waiting.begin(), _waiting.end(),
      [](const Waiter& left, const Waiter& right) { return rank(left.key) < rank(right.key); });
  const auto resume = next->resume;
  _waiting.erase(next);
  resume.resume();
}

QCoro::Task<> holdTurn(ScanCoordinator& coordinator, Clock& clock, std::function<bool()> over,
                       std::stop_token stop, std::function<std::stop_token()> change) {
  const Date deadline = clock.now() + 900s;
  while (!stop.stop_requested() && !over() && clock.now() < deadline) {
    if (change) {
      const CombinedStopToken either(stop, change());
      const auto rest = std::chrono::ceil<std::chrono::nanoseconds>(deadline - clock.now());
      co_await sleepFor(clock, rest, either.token());
      if (stop.stop_requested() || clock.now() >= deadline) break;
    }
    co_await sleepFor(clock, 250ms, stop);
  }
  coordinator.finishTurn();
}

QCoro::Task<> runAutoScan(ScanCoordinator& coordinator, Clock& clock, AutoScan scan,
                          std::stop_token stop) {
  if (!scan.isNeeded()) co_return;
  if (!co_await coordinator.beginAutoScan(scan.key, stop)) co_return;
  if (scan.isNeeded()) scan.start();
  co_await holdTurn(
      coordinator, clock, [&scan] { return !scan.isRunning(); }, stop);
}

QCoro::Task<> runAutoScanWithAccess(PermissionsManager& permissions, ScanCoordinator& coordinator,
                                    Clock& clock, AutoScan scan, std::stop_token stop) {
  if (!scan.isNeeded()) co_return;
  permissions.refreshAccess();
  if (!permissions.hasFullDiskAccess()) co_return;
  co_await runAutoScan(coordinator, clock, std::move(scan), std::move(stop));
}

}  // namespace klarvik
