#include "panes/storage/storage_analytics_model.h"

#include <QPointer>
#include <algorithm>
#include <chrono>
#include <iterator>
#include <utility>

#include "base/paths.h"
#include "panes/kit/row_text.h"
#include "panes/storage/storage_texts.h"
#include "places/disk_layout.h"
#include "platform/file_system.h"
#include "state/set_if_changed.h"
#include "translation/translation.h"

namespace klarvik {
namespace {

/// How often "measured 3 min. ago" is written anew.
constexpr std::chrono::seconds ageStep{10};

StorageAnalyticsModel::Measure measureWithFreshEngine(const Platform& platform) {
  return [&platform](std::stop_token stop, const DiskCompositionEngine::ProgressSink& progress) {
    return DiskCompositionEngine(platform).measureDisk(std::move(stop), progress);
  };
}

}  // namespace

StorageAnalyticsModel::StorageAnalyticsModel(SharedState& shared, const Desktop& desktop,
                                             QObject* parent, Measure measure)
    : ToolPane(parent),
      _history(shared.scanHistory()),
      _diskMonitor(shared.diskMonitor()),
      _permissions(shared.permissionsManager()),
      _desktop(desktop),
      _measure(measure ? std::move(measure) : measureWithFreshEngine(desktop)),
      _browser(shared, desktop),
      _measurement(desktop.clock) {
  connect(&_history, &ScanHistory::scansChanged, this, &StorageAnalyticsModel::readScans);
  connect(&_history, &ScanHistory::cleansChanged, this, &StorageAnalyticsModel::readCleans);
  connect(&_diskMonitor, &DiskMonitor::statsChanged, this, &StorageAnalyticsModel::updateSubtitle);
  connect(&_permissions, &PermissionsManager::hasFullDiskAccessChanged, this,
          &StorageAnalyticsModel::nothingMeasuredChanged);
  readScans();
  readCleans();
  updateSubtitle();
}

StorageAnalyticsModel::~StorageAnalyticsModel() {
  blockSignals(true);
}

QString StorageAnalyticsModel::actionTitle() const {
  return QString::fromStdString(storage::actionTitle(isMeasuring(), isMeasured()));
}

QString StorageAnalyticsModel::nothingMeasured() const {
  return QString::fromStdString(storage::nothingMeasured(_permissions.hasFullDiskAccess()));
}

QList<DonutSlice> StorageAnalyticsModel::slices() const {
  QList<DonutSlice> slices;
  for (const StorageLegendRow& row : _legend) slices.append(row.slice);
  return slices;
}

QString StorageAnalyticsModel::usedText() const {
  return _composition ? byteText(_composition->usedBytes, _desktop.formatting) : QString();
}

QString StorageAnalyticsModel::noGrowth() const {
  return QString::fromStdString(
      storage::noGrowth(_history.scans().size(), static_cast<std::size_t>(_growth.size())));
}

QString StorageAnalyticsModel::noTrend() const {
  return QString::fromStdString(storage::noTrend(_history.cleans().size()));
}

void StorageAnalyticsModel::performAction() {
  if (isMeasuring()) {
    stopMeasuring();
    return;
  }
  _permissions.ensureAccess([view = QPointer(this)] {
    if (view) view->startMeasuring();
  });
}

void StorageAnalyticsModel::hover(const QString& bucket, bool inside) {
  if (inside) {
    setHighlighted(bucket);
  } else if (_highlighted == bucket) {
    setHighlighted({});
  }
}

void StorageAnalyticsModel::chartsAppeared() {
  if (setIfChanged(_animateCharts, true)) emit animateChartsChanged();
}

void StorageAnalyticsModel::openBucket(const QString& bucket) {
  if (!_composition) return;
  const auto& buckets = _composition->buckets;
  const auto opened =
      std::ranges::find(buckets, bucket.toStdString(), &DiskComposition::Bucket::id);
  if (opened == buckets.end() || opened->places.empty()) return;
  const auto liesInIt = [&](const Path& path) {
    return std::ranges::any_of(
        opened->places, [&](const Path& place) { return isBelow(path.native(), place.native()); });
  };
  FolderBrowser::Area area{.name = translated(opened->label),
                           .places = opened->places,
                           .isWholeVolume = opened->places == std::vector<Path>{"/"}};
  for (const DiskComposition::Bucket& other : buckets) {
    if (other.id == opened->id) continue;
    std::ranges::copy_if(other.places, std::back_inserter(area.leftOut), liesInIt);
  }
  // A place in another one is met on the way, unless what lies between counts elsewhere.
  const auto isMetAnyway = [&](const Path& place) {
    return std::ranges::any_of(opened->places, [&](const Path& outer) {
      return isBelow(place.native(), outer.native()) &&
             std::ranges::none_of(area.leftOut, [&](const Path& between) {
               return isBelow(between.native(), outer.native()) &&
                      isBelow(place.native(), between.native());
             });
    });
  };
  std::erase_if(area.places, isMetAnyway);
  _browser.open(std::move(area));
}

void StorageAnalyticsModel::startMeasuring() {
  if (isMeasuring()) return;
  _measureLabel.clear();
  if (setIfChanged(_measureProgress, 0)) emit measureProgressChanged();
  _measurement.start<MeasureReport, DiskComposition>(
      {.work =
           [measure = _measure](std::stop_token stop, const auto& post) {
             return measure(std::move(stop), [&post](const std::string& label, double fraction) {
               post({label, fraction});
             });
           },
       .report = [this](const MeasureReport& report) { apply(report); },
       .finish = [this](DiskComposition found) { finishMeasuring(std::move(found)); }});
  measuringChanged();
}

/// The walk ends at its next entry; nobody has to wait for that.
void StorageAnalyticsModel::stopMeasuring() {
  _measurement.cancel();
  measuringChanged();
}

void StorageAnalyticsModel::apply(const MeasureReport& report) {
  _measureLabel = report.label;
  if (setIfChanged(_measureProgress, report.fraction)) emit measureProgressChanged();
  updateSubtitle();
}

void StorageAnalyticsModel::finishMeasuring(DiskComposition composition) {
  // Its age is told by the clock of the window.
  composition.measuredAt = _desktop.clock.now();
  _composition = std::move(composition);
  _legend = legendRows(_composition->displayBuckets(smallestShare), _desktop.formatting);
  emit compositionChanged();
  const bool isStillThere = std::ranges::any_of(
      _legend, [this](const StorageLegendRow& row) { return row.slice.id == _highlighted; });
  if (!isStillThere) setHighlighted({});
  measuringChanged();
  keepAgeFresh();
}

void StorageAnalyticsModel::measuringChanged() {
  emit stateChanged();
  updateSubtitle();
}

void StorageAnalyticsModel::setHighlighted(const QString& bucket) {
  if (setIfChanged(_highlighted, bucket)) emit highlightedChanged();
}

void StorageAnalyticsModel::updateSubtitle() {
  const auto measuredAt = _composition ? std::optional(_composition->measuredAt) : std::nullopt;
  const std::string text =
      isMeasuring()
          ? storage::measuringSubtitle(_measureLabel)
          : storage::restingSubtitle(_diskMonitor.stats(), measuredAt, _desktop.clock.now(),
                                     _desktop.formatting,
                                     layoutFor(_desktop.files.home()).words.keptForSystem);
  if (setIfChanged(_subtitle, QString::fromStdString(text))) emit subtitleChanged();
}

void StorageAnalyticsModel::keepAgeFresh() {
  _ageAlarm = _desktop.clock.wakeAfter(ageStep, [this] {
    updateSubtitle();
    keepAgeFresh();
  });
}

void StorageAnalyticsModel::readScans() {
  _growth = growthRows(fastestGrowing(_history.scans()), _desktop.formatting);
  emit growthChanged();
}

void StorageAnalyticsModel::readCleans() {
  _cleanBars = klarvik::cleanBars(_history.cleans(), _desktop.formatting);
  emit cleanBarsChanged();
}

}  // namespace klarvik
