#include "state/scan_session.h"

namespace klarvik {

ScanSession::ScanSession(Section tool, ToolActivity& activity, ScanCoordinator& coordinator,
                         Clock& clock)
    : _key(toolKey(tool)),
      _activity(activity),
      _coordinator(coordinator),
      _clock(clock),
      _run(clock) {}

ScanSession::~ScanSession() {
  drop();
}

void ScanSession::cancel() {
  _run.cancel();
  _activity.clear(_key);
}

void ScanSession::drop() {
  _dropped.request_stop();
  _run.drop();
}

void ScanSession::showProgress(double fraction) {
  _activity.setProgress(_key, fraction);
}

void ScanSession::showSummary(const std::string& summary) {
  _activity.finish(_key, summary);
}

void ScanSession::setTotal(std::int64_t bytes, std::int64_t items) {
  _coordinator.setTotal(_key, {bytes, items, _clock.now()});
}

void ScanSession::startInTurn(std::function<void()> start) {
  runAutoScan(_coordinator, _clock, autoScan(std::move(start)), dropped());
}

void ScanSession::startInTurnWithAccess(PermissionsManager& permissions,
                                        std::function<void()> start) {
  runAutoScanWithAccess(permissions, _coordinator, _clock, autoScan(std::move(start)), dropped());
}

AutoScan ScanSession::autoScan(std::function<void()> start) const {
  return {.key = _key,
          .isNeeded = [this] { return !isRunning() && !hasScanned(); },
          .start = std::move(start),
          .isRunning = [this] { return isRunning(); }};
}

}  // namespace klarvik
