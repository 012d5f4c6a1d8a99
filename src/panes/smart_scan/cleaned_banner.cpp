#include "panes/smart_scan/cleaned_banner.h"

#include <QPointer>

#include "panes/smart_scan/smart_scan_texts.h"
#include "places/disk_layout.h"

namespace klarvik {

CleanedBanner::CleanedBanner(AppState& appState, DiskMonitor& diskMonitor,
                             TrashMonitor& trashMonitor, const Formatting& formatting,
                             QObject* parent)
    : QObject(parent),
      _appState(appState),
      _diskMonitor(diskMonitor),
      _trashMonitor(trashMonitor),
      _formatting(formatting) {
  connect(&appState, &AppState::lastCleanChanged, this, &CleanedBanner::changed);
  connect(&diskMonitor, &DiskMonitor::statsChanged, this, &CleanedBanner::changed);
}

bool CleanedBanner::isShown() const {
  return _appState.lastClean().has_value();
}

QString CleanedBanner::headline() const {
  return QString::fromStdString(tellsApart()
                                    ? smart_scan::cleanedApartHeadline(summary(), _formatting)
                                    : smart_scan::cleanedHeadline(summary(), _formatting));
}

QString CleanedBanner::detail() const {
  const std::int64_t free = _diskMonitor.stats().freeBytes;
  return QString::fromStdString(tellsApart()
                                    ? smart_scan::cleanedApartDetail(free, _formatting)
                                    : smart_scan::cleanedDetail(summary(), free, _formatting));
}

/// Whether some of it went to the Trash and some for good, and the user is told which.
bool CleanedBanner::tellsApart() const {
  const auto inTrash = static_cast<std::int64_t>(summary().restorable.size());
  return _appState.layout().tellsWhatGoesForGood && inTrash > 0 && inTrash < summary().itemCount;
}

bool CleanedBanner::isRestorable() const {
  return !summary().restorable.empty();
}

void CleanedBanner::emptyTrash() {
  if (isRestorable()) _trashMonitor.emptyTrash();
}

void CleanedBanner::restore() {
  if (!_isRestoring) {
    restoreLastClean();
  }
}

void CleanedBanner::dismiss() {
  _appState.dismissLastClean();
}

QCoro::Task<> CleanedBanner::restoreLastClean() {
  const QPointer<CleanedBanner> banner = this;
  setRestoring(true);
  co_await _appState.restoreLastClean();
  if (banner) {
    setRestoring(false);
  }
}

void CleanedBanner::setRestoring(bool restoring) {
  if (_isRestoring != restoring) {
    _isRestoring = restoring;
    emit changed();
  }
}

/// Not a copy: it lists everything that can be restored.
const AppState::CleanSummary& CleanedBanner::summary() const {
  static const AppState::CleanSummary none;
  const auto& lastClean = _appState.lastClean();
  return lastClean ? *lastClean : none;
}

}  // namespace klarvik
