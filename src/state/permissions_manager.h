#pragma once

#include <QCoro/QCoroTask>
#include <QObject>
#include <functional>
#include <optional>
#include <stop_token>
#include <vector>

#include "base/paths.h"
#include "platform/platform.h"
#include "state/timers.h"

namespace klarvik {

/// Whether the protected places can be read, and how the user gets there. Main thread only.
class PermissionsManager : public QObject {
  Q_OBJECT
 public:
  explicit PermissionsManager(const Desktop& desktop, QObject* parent = nullptr);
  ~PermissionsManager() override;

  [[nodiscard]] bool hasFullDiskAccess() const { return _hasFullDiskAccess; }
  [[nodiscard]] bool isRequestingAccess() const { return _isRequestingAccess; }

  /// Touches no state.
  [[nodiscard]] bool probeAccess() const;
  /// Probes, and stores the answer in `hasFullDiskAccess`.
  void refreshAccess();
  /// Runs `work` now, or after the sheet has been shown once in this process.
  void ensureAccess(std::function<void()> work);
  void finishAccessRequest();
  void openFullDiskAccessSettings();
  void relaunch();

 signals:
  void hasFullDiskAccessChanged();
  void isRequestingAccessChanged();

 private:
  void setRequestingAccess(bool requesting);
  void startPolling();
  QCoro::Task<> endPollingLater();

  const Desktop& _desktop;
  std::vector<Path> _protectedFiles;
  bool _hasFullDiskAccess = false;
  bool _isRequestingAccess = false;
  bool _hasAskedThisLaunch = false;
  std::function<void()> _pendingWork;
  std::optional<RepeatingTimer> _pollTimer;
  std::stop_source _lifetime;
};

}  // namespace klarvik
