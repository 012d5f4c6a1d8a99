#include "state/disk_monitor.h"

#include <chrono>

#include "places/disk_layout.h"
#include "platform/file_system.h"
#include "platform/notification_center.h"
#include "state/section.h"
#include "state/set_if_changed.h"
#include "state/timers.h"

namespace klarvik {

using namespace std::chrono_literals;

DiskMonitor::DiskMonitor(const Desktop& desktop, QObject* parent)
    : QObject(parent),
      _desktop(desktop),
      _stats(readStats()),
      _onDiskChanged(
          desktop.notifications.observe(diskChangedNotification, [this] { diskChanged(); })),
      _onActive(
          desktop.notifications.observe(applicationActiveNotification, [this] { refreshNow(); })),
      _timer(desktop.clock, 5s, [this] { refreshNow(); }) {}

DiskMonitor::~DiskMonitor() {
  _settleStop.request_stop();
}

void DiskMonitor::refreshNow() {
  if (setIfChanged(_stats, readStats())) emit statsChanged();
}

DiskStats DiskMonitor::readStats() const {
  return readDiskStats(_desktop.volume, layoutFor(_desktop.files.home()));
}

void DiskMonitor::diskChanged() {
  refreshNow();
  _settleStop.request_stop();
  _settleStop = std::stop_source();
  settle(_settleStop.get_token());
}

QCoro::Task<> DiskMonitor::settle(std::stop_token stop) {
  for (const auto delay : settleDelays) {
    co_await sleepFor(_desktop.clock, delay, stop);
    if (stop.stop_requested()) co_return;
    refreshNow();
  }
}

}  // namespace klarvik
