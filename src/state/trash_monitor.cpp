#include "state/trash_monitor.h"

#include <chrono>
#include <utility>

#include "base/bytes.h"
#include "engine/sizes.h"
#include "places/disk_layout.h"
#include "platform/main_loop/coalescing_queue.h"
#include "platform/notification_center.h"
#include "platform/trash.h"
#include "state/section.h"
#include "state/set_if_changed.h"

namespace klarvik {

namespace {

using namespace std::chrono_literals;

std::int64_t sizeOf(const FileSystem& files, const std::vector<Path>& entries,
                    const std::stop_token& stop) {
  std::int64_t sum = 0;
  for (const Path& entry : entries) {
    if (stop.stop_requested()) break;
    sum = addBytes(sum, allocatedSize(files, entry));
  }
  return sum;
}

}  // namespace

TrashMonitor::TrashMonitor(const Desktop& desktop, RemovalNotice& notice, QObject* parent)
    : QObject(parent),
      _desktop(desktop),
      _notice(notice),
      _onDiskChanged(
          desktop.notifications.observe(diskChangedNotification, [this] { refresh(false); })),
      _onActive(
          desktop.notifications.observe(applicationActiveNotification, [this] { refresh(false); })),
      _timer(desktop.clock, 10s, [this] { refresh(false); }) {
  refresh(true);
}

TrashMonitor::~TrashMonitor() {
  blockSignals(true);
  finishEmptying();
  _measuringWork.finish();
}

void TrashMonitor::refresh(bool force) {
  if (_figures.isMeasuring) return;
  const auto stamp = _desktop.trash.modificationDate();
  if (!force && stamp && stamp == _lastStamp) return;
  auto entries = _desktop.trash.list();
  setContents(entries.has_value(), entries ? static_cast<std::int64_t>(entries->size()) : 0);
  if (_figures.itemCount > 0) {
    measure(std::move(*entries), stamp);
    return;
  }
  if (entries) setBytes(0);
  _lastStamp = stamp;
}

QCoro::Task<> TrashMonitor::measure(std::vector<Path> entries, std::optional<Date> stamp) {
  setMeasuring(true);
  auto sum = [&files = _desktop.files, &entries, stop = _lifetime.get_token()] {
    return sizeOf(files, entries, stop);
  };
  const std::int64_t bytes = co_await runInBackground(_measuringWork, std::move(sum),
                                                      BackgroundTasks::Priority::background);
  _lastStamp = stamp;
  setBytes(bytes);
  setMeasuring(false);
}

bool TrashMonitor::asksBeforeEmptying() const {
  return layoutFor(_desktop.files.home()).tellsWhatGoesForGood;
}

void TrashMonitor::requestEmptying() {
  if (asksBeforeEmptying()) {
    emit confirmationWanted();
  } else {
    emptyTrash();
  }
}

QCoro::Task<std::int64_t> TrashMonitor::emptyTrash() {
  if (_figures.isEmptying) co_return std::int64_t{0};
  setEmptying(true);
  setEmptyProgress(std::nullopt);
  LeftAlone leftAlone;
  ScannerEngine engine(_desktop, &leftAlone);
  CoalescingQueue<DeletionProgress> reports(
      _desktop.clock, [this](DeletionProgress progress) { setEmptyProgress(std::move(progress)); });
  auto empty = [&engine, &reports, stop = _lifetime.get_token()] {
    return engine.emptyTrash(stop,
                             [&](const DeletionProgress& progress) { reports.post(progress); });
  };
  const std::int64_t freed = co_await runInBackground(_emptyingWork, std::move(empty));
  _notice.tell(leftAlone);
  setEmptyProgress(std::nullopt);
  setEmptying(false);
  _desktop.notifications.post(diskChangedNotification);
  refresh(true);
  co_return freed;
}

void TrashMonitor::stopEmptying() {
  _lifetime.request_stop();
}

void TrashMonitor::finishEmptying() {
  stopEmptying();
  _emptyingWork.finish();
}

void TrashMonitor::setContents(bool readable, std::int64_t itemCount) {
  const bool readableChanged = setIfChanged(_figures.isReadable, readable);
  if (setIfChanged(_figures.itemCount, itemCount) || readableChanged) emit changed();
}

void TrashMonitor::setBytes(std::int64_t bytes) {
  if (setIfChanged(_figures.bytes, bytes)) emit changed();
}

void TrashMonitor::setMeasuring(bool measuring) {
  if (setIfChanged(_figures.isMeasuring, measuring)) emit changed();
}

void TrashMonitor::setEmptying(bool emptying) {
  if (setIfChanged(_figures.isEmptying, emptying)) emit changed();
}

void TrashMonitor::setEmptyProgress(std::optional<DeletionProgress> progress) {
  if (setIfChanged(_figures.emptyProgress, std::move(progress))) emit changed();
}

}  // namespace klarvik
