#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>
#include <QString>
#include <memory>

#include "panes/smart_scan/clean_footer_model.h"
#include "panes/smart_scan/cleaned_banner_model.h"
#include "panes/smart_scan/other_tools_bar_model.h"
#include "panes/smart_scan/review_table_model.h"
#include "panes/smart_scan/root_run_model.h"
#include "panes/smart_scan/scan_preview_model.h"
#include "panes/smart_scan/scanning_table_model.h"
#include "panes/tool_pane.h"
#include "platform/platform.h"
#include "state/app_state.h"
#include "state/shared_state.h"

namespace klarvik {

/// The first section of the main window: a view of `AppState`, which keeps no scan data of its own.
/// What is shown when, every text that follows a rule, and what each control does. Main thread
/// only; everything handed in must outlive it.
class SmartScanModel : public klarvik::ToolPane {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("The pane makes it.")
  Q_PROPERTY(QString title READ title NOTIFY headerChanged)
  Q_PROPERTY(QString subtitle READ subtitle NOTIFY progressChanged)
  Q_PROPERTY(QString actionTitle READ actionTitle NOTIFY headerChanged)
  Q_PROPERTY(bool offersSafeOnly READ offersSafeOnly NOTIFY headerChanged)
  Q_PROPERTY(Body body READ body NOTIFY headerChanged)
  Q_PROPERTY(QString scanningHeadline READ scanningHeadline NOTIFY progressChanged)
  Q_PROPERTY(double progress READ progress NOTIFY progressChanged)
  Q_PROPERTY(bool isMeasuring READ isMeasuring NOTIFY progressChanged)
  Q_PROPERTY(bool isConfirming READ isConfirming NOTIFY isConfirmingChanged)
  Q_PROPERTY(klarvik::ScanPreviewModel* preview READ preview CONSTANT)
  Q_PROPERTY(klarvik::ScanningTableModel* scanningTable READ scanningTable CONSTANT)
  Q_PROPERTY(klarvik::ReviewTableModel* reviewTable READ reviewTable CONSTANT)
  Q_PROPERTY(klarvik::CleanFooterModel* footer READ footer CONSTANT)
  Q_PROPERTY(klarvik::CleanedBannerModel* banner READ banner CONSTANT)
  Q_PROPERTY(klarvik::OtherToolsBarModel* elsewhere READ elsewhere CONSTANT)
  Q_PROPERTY(klarvik::RootRunModel* rootRun READ rootRun CONSTANT)

 public:
  enum class Body { Preview, Scanning, Review, NothingFound };
  Q_ENUM(Body)

  SmartScanModel(AppState& appState, SharedState& shared, const Desktop& desktop,
                 QObject* parent = nullptr);

  [[nodiscard]] QString title() const;
  [[nodiscard]] QString subtitle() const;
  [[nodiscard]] QString actionTitle() const;
  [[nodiscard]] bool offersSafeOnly() const;
  [[nodiscard]] Body body() const;
  [[nodiscard]] QString scanningHeadline() const;
  [[nodiscard]] double progress() const;
  /// A category is being measured right now.
  [[nodiscard]] bool isMeasuring() const;
  [[nodiscard]] bool isConfirming() const;

  [[nodiscard]] ScanPreviewModel* preview() { return &_preview; }
  [[nodiscard]] ScanningTableModel* scanningTable() { return &_scanningTable; }
  [[nodiscard]] ReviewTableModel* reviewTable() { return &_reviewTable; }
  [[nodiscard]] CleanFooterModel* footer() { return &_footer; }
  [[nodiscard]] CleanedBannerModel* banner() { return &_banner; }
  [[nodiscard]] OtherToolsBarModel* elsewhere() { return &_elsewhere; }
  [[nodiscard]] RootRunModel* rootRun() { return &_rootRun; }

  void stopRemovals() override { _rootRun.stop(); }
  void finishRemovals() override { _rootRun.finish(); }

  /// The header's main button: stops a running scan, else starts one.
  Q_INVOKABLE void performAction();
  Q_INVOKABLE void selectSafeOnly();
  Q_INVOKABLE void confirmClean();
  Q_INVOKABLE void cancelConfirmation();

 signals:
  void headerChanged();
  void progressChanged();
  void isConfirmingChanged();

 private:
  void stateChanged();
  void resultsChanged();
  void progressMoved();
  void keepRelativeDateFresh();
  [[nodiscard]] bool isScanning() const;

  AppState& _appState;
  const Desktop& _desktop;
  std::unique_ptr<Clock::Alarm> _minute;
  bool _wasScanning = false;

  ScanPreviewModel _preview;
  ScanningTableModel _scanningTable;
  ReviewTableModel _reviewTable;
  CleanFooterModel _footer;
  CleanedBannerModel _banner;
  OtherToolsBarModel _elsewhere;
  RootRunModel _rootRun;
};

}  // namespace klarvik
