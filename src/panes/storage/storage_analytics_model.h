#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>
#include <QString>
#include <functional>
#include <memory>
#include <optional>
#include <stop_token>
#include <string>

#include "panes/storage/folder_browser.h"
#include "panes/storage/storage_rows.h"
#include "panes/tool_pane.h"
#include "platform/platform.h"
#include "state/engine_run.h"
#include "state/shared_state.h"
#include "tools/disk_composition.h"

namespace klarvik {

/// The Storage section: what fills the disk, once the user has asked for a measurement, and what
/// the history of scans and cleans tells without reading the disk. It never measures by itself.
/// Main thread only; everything handed in must outlive it.
class StorageAnalyticsModel : public klarvik::ToolPane {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("The pane makes it.")
  Q_PROPERTY(QString subtitle READ subtitle NOTIFY subtitleChanged)
  Q_PROPERTY(QString actionTitle READ actionTitle NOTIFY stateChanged)
  Q_PROPERTY(bool isMeasuring READ isMeasuring NOTIFY stateChanged)
  Q_PROPERTY(double measureProgress READ measureProgress NOTIFY measureProgressChanged)
  Q_PROPERTY(bool isMeasured READ isMeasured NOTIFY stateChanged)
  Q_PROPERTY(QString nothingMeasured READ nothingMeasured NOTIFY nothingMeasuredChanged)
  Q_PROPERTY(QList<klarvik::DonutSlice> slices READ slices NOTIFY compositionChanged)
  Q_PROPERTY(QList<klarvik::StorageLegendRow> legend READ legend NOTIFY compositionChanged)
  Q_PROPERTY(QString usedText READ usedText NOTIFY compositionChanged)
  Q_PROPERTY(klarvik::FolderBrowser* browser READ browser CONSTANT)
  Q_PROPERTY(QString highlighted READ highlighted NOTIFY highlightedChanged)
  Q_PROPERTY(bool animateCharts READ animateCharts NOTIFY animateChartsChanged)
  Q_PROPERTY(QList<klarvik::GrowthRow> growth READ growth NOTIFY growthChanged)
  Q_PROPERTY(QString noGrowth READ noGrowth NOTIFY growthChanged)
  Q_PROPERTY(QList<klarvik::CleanBar> cleanBars READ cleanBars NOTIFY cleanBarsChanged)
  Q_PROPERTY(QString noTrend READ noTrend NOTIFY cleanBarsChanged)

 public:
  /// Measures on the calling thread, as `DiskCompositionEngine::measureDisk` does.
  using Measure =
      std::function<DiskComposition(std::stop_token, const DiskCompositionEngine::ProgressSink&)>;

  /// Of the used bytes: what is smaller shares one slice with its like.
  static constexpr double smallestShare = 0.015;

  /// Without a `measure` of its own, each measurement is that of a fresh `DiskCompositionEngine`.
  StorageAnalyticsModel(SharedState& shared, const Desktop& desktop, QObject* parent = nullptr,
                        Measure measure = {});
  /// Asks a running measurement to stop, and waits for it.
  ~StorageAnalyticsModel() override;

  [[nodiscard]] QString subtitle() const { return _subtitle; }
  [[nodiscard]] QString actionTitle() const;
  [[nodiscard]] bool isMeasuring() const { return _measurement.isRunning(); }
  [[nodiscard]] double measureProgress() const { return _measureProgress; }
  [[nodiscard]] const std::optional<DiskComposition>& composition() const { return _composition; }
  [[nodiscard]] bool isMeasured() const { return _composition.has_value(); }
  [[nodiscard]] QString nothingMeasured() const;
  [[nodiscard]] QList<DonutSlice> slices() const;
  [[nodiscard]] QList<StorageLegendRow> legend() const { return _legend; }
  /// In the middle of the chart.
  [[nodiscard]] QString usedText() const;
  /// The bucket under the pointer; empty without one.
  [[nodiscard]] QString highlighted() const { return _highlighted; }
  /// The charts have come into sight.
  [[nodiscard]] bool animateCharts() const { return _animateCharts; }
  [[nodiscard]] QList<GrowthRow> growth() const { return _growth; }
  [[nodiscard]] QString noGrowth() const;
  [[nodiscard]] QList<CleanBar> cleanBars() const { return _cleanBars; }
  [[nodiscard]] QString noTrend() const;

  /// The header's main button: stops a running measurement, else starts one, once the user has been
  /// asked for the permission.
  Q_INVOKABLE void performAction();
  /// The pointer has come to or left a bucket, in the chart or in the legend.
  Q_INVOKABLE void hover(const QString& bucket, bool inside);
  Q_INVOKABLE void chartsAppeared();
  /// A press on a bucket, in the chart or in the legend: the folders in it. Nothing on one that
  /// cannot be looked into.
  Q_INVOKABLE void openBucket(const QString& bucket);
  [[nodiscard]] FolderBrowser* browser() { return &_browser; }
  void stopRemovals() override { _browser.stopRemovals(); }
  void finishRemovals() override { _browser.finishRemovals(); }

 signals:
  void subtitleChanged();
  void stateChanged();
  void measureProgressChanged();
  void nothingMeasuredChanged();
  void compositionChanged();
  void highlightedChanged();
  void animateChartsChanged();
  void growthChanged();
  void cleanBarsChanged();

 private:
  struct MeasureReport {
    std::string label;
    double fraction = 0;
  };

  void startMeasuring();
  void stopMeasuring();
  void apply(const MeasureReport& report);
  void finishMeasuring(DiskComposition composition);
  void measuringChanged();
  void setHighlighted(const QString& bucket);
  void updateSubtitle();
  void keepAgeFresh();
  void readScans();
  void readCleans();

  ScanHistory& _history;
  DiskMonitor& _diskMonitor;
  PermissionsManager& _permissions;
  const Desktop& _desktop;
  Measure _measure;

  bool _animateCharts = false;
  std::optional<DiskComposition> _composition;
  double _measureProgress = 0;
  std::string _measureLabel;
  QString _highlighted;

  QString _subtitle;
  QList<StorageLegendRow> _legend;
  QList<GrowthRow> _growth;
  QList<CleanBar> _cleanBars;
  std::unique_ptr<Clock::Alarm> _ageAlarm;
  FolderBrowser _browser;
  EngineRun _measurement;
};

}  // namespace klarvik
