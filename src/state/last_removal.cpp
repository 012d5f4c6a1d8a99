#include "state/last_removal.h"

#include <utility>

#include "base/bytes.h"
#include "core/removal_outcome.h"
#include "engine/scanner_engine.h"
#include "platform/notification_center.h"
#include "platform/platform.h"
#include "state/removal_notice.h"
#include "state/section.h"

namespace klarvik {

LastRemoval::LastRemoval(const Desktop& desktop, RemovalNotice& notice, QObject* parent)
    : QObject(parent), _desktop(desktop), _notice(notice) {}

LastRemoval::~LastRemoval() {
  _lifetime.request_stop();
  _work.finish();
}

void LastRemoval::tell(std::vector<TrashedItem> items, std::function<void()> whenRestored) {
  if (!items.empty()) show({}, std::move(items), std::move(whenRestored));
}

void LastRemoval::tellUninstalled(std::string application, std::vector<TrashedItem> items,
                                  std::function<void()> whenRestored) {
  show({.application = std::move(application)}, std::move(items), std::move(whenRestored));
}

void LastRemoval::show(Summary summary, std::vector<TrashedItem> items,
                       std::function<void()> whenRestored) {
  // What is being put back is told first.
  if (_isRestoring) return;
  summary.itemCount = static_cast<std::int64_t>(items.size());
  for (const TrashedItem& item : items) summary.bytes = addBytes(summary.bytes, item.bytes);
  _summary = std::move(summary);
  _work.deleteInBackground(std::exchange(_items, std::move(items)));
  _whenRestored = std::move(whenRestored);
  emit changed();
}

void LastRemoval::dismiss() {
  if (!_summary || _isRestoring) return;
  _summary.reset();
  _work.deleteInBackground(std::exchange(_items, {}));
  emit changed();
}

QCoro::Task<> LastRemoval::restore() {
  if (!canRestore()) co_return;
  _isRestoring = true;
  emit changed();
  LeftAlone leftAlone;
  ScannerEngine engine(_desktop, &leftAlone);
  auto restore = [&engine, items = std::exchange(_items, {}), stop = _lifetime.get_token()] {
    return engine.restoreItems(items, stop);
  };
  const std::int64_t count = co_await runInBackground(_work, std::move(restore));
  _summary->restoredCount = count;
  _isRestoring = false;
  _notice.tell(leftAlone);
  emit changed();
  _desktop.notifications.post(diskChangedNotification);
  // Who was told may have dismissed it by now.
  if (const auto whenRestored = _whenRestored; count > 0 && whenRestored) whenRestored();
}

}  // namespace klarvik
