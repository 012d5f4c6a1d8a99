#pragma once

#include <QCoro/QCoroTask>
#include <QObject>
#include <array>
#include <chrono>
#include <stop_token>

#include "core/disk_stats.h"
#include "platform/notification_center.h"
#include "platform/platform.h"
#include "state/timers.h"

namespace klarvik {

/// How full the volume is. Reads every 5 seconds, when the application becomes active, and several
/// times after "klarvik.diskChanged". Main thread only.
class DiskMonitor : public QObject {
  Q_OBJECT
 public:
  explicit DiskMonitor(const Desktop& desktop, QObject* parent = nullptr);
  ~DiskMonitor() override;

  [[nodiscard]] const DiskStats& stats() const { return _stats; }
  void refreshNow();

 signals:
  void statsChanged();

 private:
  /// Freed space shows up late, so one reading is not enough.
  static constexpr std::array<std::chrono::milliseconds, 4> settleDelays{
      std::chrono::milliseconds(500), std::chrono::milliseconds(1000),
      std::chrono::milliseconds(2000), std::chrono::milliseconds(4000)};

  [[nodiscard]] DiskStats readStats() const;
  void diskChanged();
  QCoro::Task<> settle(std::stop_token stop);

  const Desktop& _desktop;
  DiskStats _stats;
  NotificationCenter::Subscription _onDiskChanged;
  NotificationCenter::Subscription _onActive;
  RepeatingTimer _timer;
  std::stop_source _settleStop;
};

}  // namespace klarvik
