#include "panes/storage/storage_analytics_view.h"

#include <QPointer>
#include <algorithm>
#include <chrono>
#include <utility>

#include "panes/kit/row_text.h"
#include "panes/storage/storage_texts.h"
#include "state/set_if_changed.h"

namespace klarvik {
namespace {

/// How often "measured 3 min. ago" is written anew.
constexpr std::chrono::seconds ageStep{10};

StorageAnalyticsView::Measure measureWithFreshEngine(const Platform& platform) {
  return [&platform](std::stop_token stop, const DiskCompositionEngine::ProgressSink& progress) {
    return DiskCompositionEngine(platform).measureDisk(std::move(stop), progress);
  };
}

}  // namespace

StorageAnalyticsView::StorageAnalyticsView(SharedState& shared, const Desktop& desktop,
                                           QObject* parent, Measure measure)
    : ToolPane(parent),
      _history(shared.scanHistory()),
      _diskMonitor(shared.diskMonitor()),
      _permissions(shared.permissionsManager()),
      _desktop(desktop),
      _measure(measure ? std::move(measure) : measureWithFreshEngine(desktop)),
      _measurement(desktop.clock) {
  connect(&_history, &ScanHistory::scansChanged, this, &StorageAnalyticsView::readScans);
  connect(&_history, &ScanHistory::cleansChanged, this, &StorageAnalyticsView::readCleans);
  connect(&_diskMonitor, &DiskMonitor::statsChanged, this, &StorageAnalyticsView::updateSubtitle);
  connect(&_permissions, &PermissionsManager::hasFullDiskAccessChanged, this,
          &StorageAnalyticsView::nothingMeasuredChanged);
  readScans();
  readCleans();
  updateSubtitle();
}

StorageAnalyticsView::~StorageAnalyticsView() {
  blockSignals(true);
}

QString StorageAnalyticsView::actionTitle() const {
  return QString::fromStdString(storage::actionTitle(isMeasuring(), isMeasured()));
}

QString StorageAnalyticsView::nothingMeasured() const {
  return QString::fromStdString(storage::nothingMeasured(_permissions.hasFullDiskAccess()));
}

QList<DonutSlice> StorageAnalyticsView::slices() const {
  QList<DonutSlice> slices;
  for (const StorageLegendRow& row : _legend) slices.append(row.slice);
  return slices;
}

QString StorageAnalyticsView::usedText() const {
  return _composition ? byteText(_composition->usedBytes, _desktop.formatting) : QString();
}

QString StorageAnalyticsView::noGrowth() const {
  return QString::fromStdString(
      storage::noGrowth(_history.scans().size(), static_cast<std::size_t>(_growth.size())));
}

QString StorageAnalyticsView::noTrend() const {
  return QString::fromStdString(storage::noTrend(_history.cleans().size()));
}

void StorageAnalyticsView::performAction() {
  if (isMeasuring()) {
    stopMeasuring();
    return;
  }
  _permissions.ensureAccess([view = QPointer(this)] {
    if (view) view->startMeasuring();
  });
}

void StorageAnalyticsView::hover(const QString& bucket, bool inside) {
  if (inside) {
    setHighlighted(bucket);
  } else if (_highlighted == bucket) {
    setHighlighted({});
  }
}

void StorageAnalyticsView::chartsAppeared() {
  if (setIfChanged(_animateCharts, true)) emit animateChartsChanged();
}

void StorageAnalyticsView::startMeasuring() {
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
void StorageAnalyticsView::stopMeasuring() {
  _measurement.cancel();
  measuringChanged();
}

void StorageAnalyticsView::apply(const MeasureReport& report) {
  _measureLabel = report.label;
  if (setIfChanged(_measureProgress, report.fraction)) emit measureProgressChanged();
  updateSubtitle();
}

void StorageAnalyticsView::finishMeasuring(DiskComposition composition) {
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

void StorageAnalyticsView::measuringChanged() {
  emit stateChanged();
  updateSubtitle();
}

void StorageAnalyticsView::setHighlighted(const QString& bucket) {
  if (setIfChanged(_highlighted, bucket)) emit highlightedChanged();
}

void StorageAnalyticsView::updateSubtitle() {
  const auto measuredAt = _composition ? std::optional(_composition->measuredAt) : std::nullopt;
  const std::string text =
      isMeasuring() ? storage::measuringSubtitle(_measureLabel)
                    : storage::restingSubtitle(_diskMonitor.stats(), measuredAt,
                                               _desktop.clock.now(), _desktop.formatting);
  if (setIfChanged(_subtitle, QString::fromStdString(text))) emit subtitleChanged();
}

void StorageAnalyticsView::keepAgeFresh() {
  _ageAlarm = _desktop.clock.wakeAfter(ageStep, [this] {
    updateSubtitle();
    keepAgeFresh();
  });
}

void StorageAnalyticsView::readScans() {
  _growth = growthRows(fastestGrowing(_history.scans()), _desktop.formatting);
  emit growthChanged();
}

void StorageAnalyticsView::readCleans() {
  _cleanBars = klarvik::cleanBars(_history.cleans(), _desktop.formatting);
  emit cleanBarsChanged();
}

}  // namespace klarvik
