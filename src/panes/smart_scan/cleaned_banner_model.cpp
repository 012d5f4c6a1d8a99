#include "panes/smart_scan/cleaned_banner_model.h"

#include <QPointer>

#include "panes/smart_scan/smart_scan_texts.h"
#include "places/disk_layout.h"

namespace klarvik {

CleanedBannerModel::CleanedBannerModel(AppState& appState, DiskMonitor& diskMonitor,
                                       TrashMonitor& trashMonitor, const Formatting& formatting,
                                       QObject* parent)
    : QObject(parent),
      _appState(appState),
      _diskMonitor(diskMonitor),
      _trashMonitor(trashMonitor),
      _formatting(formatting) {
  connect(&appState, &AppState::lastCleanChanged, this, &CleanedBannerModel::changed);
  connect(&diskMonitor, &DiskMonitor::statsChanged, this, &CleanedBannerModel::changed);
  connect(&trashMonitor, &TrashMonitor::changed, this, &CleanedBannerModel::changed);
}

bool CleanedBannerModel::isShown() const {
  return _appState.lastClean().has_value();
}

QString CleanedBannerModel::headline() const {
  return QString::fromStdString(tellsApart()
                                    ? smart_scan::cleanedApartHeadline(summary(), _formatting)
                                    : smart_scan::cleanedHeadline(summary(), _formatting));
}

QString CleanedBannerModel::detail() const {
  const std::int64_t free = _diskMonitor.stats().freeBytes;
  return QString::fromStdString(tellsApart()
                                    ? smart_scan::cleanedApartDetail(free, _formatting)
                                    : smart_scan::cleanedDetail(summary(), free, _formatting));
}

/// Whether some of it went to the Trash and some for good, and the user is told which.
bool CleanedBannerModel::tellsApart() const {
  const auto inTrash = static_cast<std::int64_t>(summary().restorable.size());
  return _appState.layout().tellsWhatGoesForGood && inTrash > 0 && inTrash < summary().itemCount;
}

bool CleanedBannerModel::isRestorable() const {
  return !summary().restorable.empty() && _trashMonitor.itemCount() > 0;
}

void CleanedBannerModel::emptyTrash() {
  if (isRestorable()) _trashMonitor.requestEmptying();
}

void CleanedBannerModel::restore() {
  if (!_isRestoring) {
    restoreLastClean();
  }
}

void CleanedBannerModel::dismiss() {
  _appState.dismissLastClean();
}

QCoro::Task<> CleanedBannerModel::restoreLastClean() {
  const QPointer<CleanedBannerModel> banner = this;
  setRestoring(true);
  co_await _appState.restoreLastClean();
  if (banner) {
    setRestoring(false);
  }
}

void CleanedBannerModel::setRestoring(bool restoring) {
  if (_isRestoring != restoring) {
    _isRestoring = restoring;
    emit changed();
  }
}

/// Not a copy: it lists everything that can be restored.
const AppState::CleanSummary& CleanedBannerModel::summary() const {
  static const AppState::CleanSummary none;
  const auto& lastClean = _appState.lastClean();
  return lastClean ? *lastClean : none;
}

}  // namespace klarvik
