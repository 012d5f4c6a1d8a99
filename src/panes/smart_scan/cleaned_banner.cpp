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
  const auto inTrash = static_cast<std::int64_t>(summary().restorable.size());
  const bool isMixed = inTrash > 0 && inTrash < summary().itemCount;
  const bool tellsApart = _appState.layout().words.fateOfSelection.empty();
  return QString::fromStdString(isMixed && tellsApart
                                    ? smart_scan::cleanedApartHeadline(summary(), _formatting)
                                    : smart_scan::cleanedHeadline(summary(), _formatting));
}

QString CleanedBanner::detail() const {
  return QString::fromStdString(
      smart_scan::cleanedDetail(summary(), _diskMonitor.stats().freeBytes, _formatting));
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
